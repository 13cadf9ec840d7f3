touchstone2 info examples/good/coupler.s4p
