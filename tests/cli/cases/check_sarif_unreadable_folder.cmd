mkdir empty
touchstone2 check --format sarif empty examples/good/amplifier.s2p
