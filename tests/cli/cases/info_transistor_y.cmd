touchstone2 info examples/good/transistor_y.s2p
