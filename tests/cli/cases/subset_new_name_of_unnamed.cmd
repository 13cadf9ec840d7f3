touchstone2 subset examples/good/antenna.s1p --ports 1=feed -o named.s1p
touchstone2 ports named.s1p
