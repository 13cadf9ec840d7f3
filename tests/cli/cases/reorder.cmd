touchstone2 reorder examples/good/splitter.s3p --order 3,1,2 -o -
