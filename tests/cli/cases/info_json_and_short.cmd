touchstone2 info --json --short examples/good/antenna.s1p
