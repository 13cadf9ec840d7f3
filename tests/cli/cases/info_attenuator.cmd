touchstone2 info examples/good/attenuator.s2p
