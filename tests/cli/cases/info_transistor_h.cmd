touchstone2 info examples/good/transistor_h.s2p
