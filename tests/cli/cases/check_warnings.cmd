printf ' # GHz S RI R 50\n! 5 \265m\n1 0.5 0\n2 1e-999 0' >warnings.s1p
touchstone2 check warnings.s1p examples/good/antenna.s1p
