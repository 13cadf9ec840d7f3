touchstone2 reorder examples/good/coupler.s4p --order 4,3,2,1 -o turned.s4p
touchstone2 ports turned.s4p
