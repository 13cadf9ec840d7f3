touchstone2 convert examples/good/antenna.s1p -o examples --force
