touchstone2 ports examples/good/coupler.s4p
