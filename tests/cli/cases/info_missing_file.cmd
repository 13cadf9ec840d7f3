touchstone2 info missing.s2p
