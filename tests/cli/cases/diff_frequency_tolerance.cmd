# At the tolerance and just above it; a missing point does not shift the others.
printf '# Hz S RI R 50\n4 1 0\n8 1 0\n' >a.s1p
printf '# Hz S RI R 50\n3 1 0\n8 1 0\n' >b.s1p
touchstone2 diff a.s1p b.s1p --frequency-tol 0.25 | tail -n 1
touchstone2 diff b.s1p a.s1p --frequency-tol 0.24999999999999997 | tail -n 1
printf '# Hz S RI R 50\n100 1 0\n101 2 0\n102 3 0\n103 4 0\n' >all.s1p
printf '# Hz S RI R 50\n100.1 1 0\n102.1 3 0\n103.1 4 0\n' >some.s1p
touchstone2 diff all.s1p some.s1p --frequency-tol 0.1
touchstone2 diff some.s1p all.s1p --frequency-tol 0.1
