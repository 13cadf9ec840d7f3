touchstone2 reorder examples/broken/missing_pair.s2p --order 2,1 -o out.s2p
