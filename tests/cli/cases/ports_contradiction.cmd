# Names that contradict each other are none, which is told before they are lost.
printf '! Port[1] = a\n# GHz S RI R 50\n! Port[1] = b\n1 1 2\n' >one.s1p
touchstone2 ports one.s1p
touchstone2 convert one.s1p -o -
