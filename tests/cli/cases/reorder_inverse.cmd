touchstone2 convert examples/good/coupler.s4p -o same.s4p
touchstone2 reorder same.s4p --order 2,4,1,3 -o there.s4p
touchstone2 reorder there.s4p --order 3,1,4,2 -o back.s4p
cmp same.s4p back.s4p
