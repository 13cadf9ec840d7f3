touchstone2 check examples/good/antenna.s1p >&-
