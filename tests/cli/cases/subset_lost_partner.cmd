touchstone2 subset examples/good/differential_pair.s4p --ports 1,2,4 -o three.s3p
touchstone2 info three.s3p | grep -e 'mixed mode' -e reference
