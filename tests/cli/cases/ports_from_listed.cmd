# What is listed can be given to another file.
touchstone2 ports examples/good/coupler.s4p >names.txt
touchstone2 ports examples/good/connector.s4p --from names.txt -o named.s4p
touchstone2 ports named.s4p
touchstone2 info named.s4p | grep matrix
