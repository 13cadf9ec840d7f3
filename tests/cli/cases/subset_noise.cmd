touchstone2 subset examples/good/amplifier.s2p --ports 1 -o one.s1p
touchstone2 info one.s1p | grep 'noise'
