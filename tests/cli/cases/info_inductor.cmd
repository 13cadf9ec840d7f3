touchstone2 info examples/good/inductor.s1p
