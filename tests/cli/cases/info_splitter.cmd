touchstone2 info examples/good/splitter.s3p
