touchstone2 info examples/good/filter.s2p
