touchstone2 subset examples/good/coupler.s4p --ports 3=out,1 -o pair.s2p
cat pair.s2p
