touchstone2 convert examples/good/antenna.s1p -o none/out.s1p
