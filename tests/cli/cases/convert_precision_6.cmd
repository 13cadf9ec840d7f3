printf '# Hz S RI R 33.333333333333336\n1234567.1234567891 0.33333333333333331 0.1\n' >long.s1p
touchstone2 convert long.s1p --precision 6 -o - | tail -n 3
