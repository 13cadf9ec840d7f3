printf '# GHz S RI R 50\n1 0.5 0' >warning.s1p
touchstone2 check --json examples/good/antenna.s1p warning.s1p examples/broken/no_data_order.ts missing.s2p
