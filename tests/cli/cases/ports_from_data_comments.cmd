# Names found in comments between the data get into the head.
printf '# GHz S RI R 50\n! Port[1] = a\n1 1 2\n' >one.s1p
touchstone2 convert one.s1p -o -
