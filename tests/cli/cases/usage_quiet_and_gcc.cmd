touchstone2 check --format gcc --quiet examples/good/amplifier.s2p
