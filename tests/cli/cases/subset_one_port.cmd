touchstone2 subset examples/good/splitter.s3p --ports 1=feed -o -
