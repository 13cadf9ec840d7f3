touchstone2 info examples/good/differential_pair.s4p
