touchstone2 check -j0 examples/good/amplifier.s2p
