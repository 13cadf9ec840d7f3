touchstone2 info examples/good/antenna.s1p examples/good/filter.s2p
