touchstone2 check --format sarif examples/good/amplifier.s2p
