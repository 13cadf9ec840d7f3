touchstone2 check --format text --json examples/good/amplifier.s2p
