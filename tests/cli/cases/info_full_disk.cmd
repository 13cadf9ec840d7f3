touchstone2 info examples/good/antenna.s1p >/dev/full
