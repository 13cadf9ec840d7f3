touchstone2 info examples/broken/pair_impedances.s4p
