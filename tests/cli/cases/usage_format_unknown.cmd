touchstone2 check --format yaml examples/good/amplifier.s2p
