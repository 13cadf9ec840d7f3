touchstone2 convert examples/good/antenna.s1p -o one.s1p
touchstone2 convert examples/good/splitter.s3p -o three.s3p
touchstone2 info one.s1p | grep version
touchstone2 info three.s3p | grep -e version -e reference -e matrix
