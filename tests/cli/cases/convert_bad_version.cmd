touchstone2 convert examples/good/antenna.s1p --to v3 -o out.s1p
