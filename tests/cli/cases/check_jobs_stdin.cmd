touchstone2 check -j4 examples/good/antenna.s1p - examples/good/inductor.s1p - < examples/good/amplifier.s2p
