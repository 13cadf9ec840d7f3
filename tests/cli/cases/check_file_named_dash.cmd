cp examples/good/antenna.s1p ./-
touchstone2 check ./- </dev/null
