touchstone2 check - <examples/good/filter.s2p
