touchstone2 ports examples/good/amplifier.s2p
