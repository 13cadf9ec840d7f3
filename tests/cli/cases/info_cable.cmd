touchstone2 info examples/good/cable.s2p
