touchstone2 info --json examples/broken/missing_pair.s2p
