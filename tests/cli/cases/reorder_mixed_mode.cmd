touchstone2 reorder examples/good/differential_pair.s4p --order 3,4,1,2 -o turned.s4p
touchstone2 info turned.s4p | grep 'mixed mode'
