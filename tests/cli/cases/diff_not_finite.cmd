# Beyond the range of a double: equal to itself, infinitely far from all else.
printf '# Hz Z RI R 1e10\n1 1e300 0\n' >infinite.s1p
printf '# Hz Z RI R 1e10\n1 -1e300 0\n' >negative.s1p
printf '# Hz Z RI R 1e10\n1 1 0\n' >finite.s1p
printf '# Hz S DB R 50\n1 1e300 45\n' >decibels.s1p
printf '# Hz S RI R 50\n1 1 0\n' >one.s1p
touchstone2 diff infinite.s1p infinite.s1p
touchstone2 diff infinite.s1p negative.s1p --tol 1e300
touchstone2 diff infinite.s1p finite.s1p | grep Z11
touchstone2 diff finite.s1p infinite.s1p --json
touchstone2 diff decibels.s1p one.s1p
