# Short numbers stay short; all digits where they count, in the first frequency and R as well.
printf '# Hz S RI R 33.25\n1234567 0.1 0.2\n' >short.s1p
touchstone2 convert short.s1p -o - | tail -n 3
printf '# Hz S RI R 33.333333333333336\n1234567.1234567891 0.1 0.2\n' >long.s1p
touchstone2 convert long.s1p -o - | tail -n 3
printf '# Hz S RI R 50\n1 0.123456789012345 0.1\n' >fifteen.s1p
touchstone2 convert fifteen.s1p -o - | tail -n 1
