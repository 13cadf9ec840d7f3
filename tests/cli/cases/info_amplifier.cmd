touchstone2 info examples/good/amplifier.s2p
