printf '# GHz S RI R 50\n1 0.5 0' >warning.s1p
touchstone2 check --werror warning.s1p examples/good/antenna.s1p
