# A turn more is the same number, as is any angle of zero; the last bit of an angle is none.
printf '# Hz S MA R 50\n1 0.5 0\n2 0 10\n3 1 -0\n' >a.s1p
printf '# Hz S MA R 50\n1 0.5 360\n2 0 20\n3 1 0\n' >b.s1p
touchstone2 diff a.s1p b.s1p
printf '# Hz S MA R 50\n1 0.5 30\n' >c.s1p
printf '# Hz S MA R 50\n1 0.5 30.000000000000004\n' >d.s1p
touchstone2 diff c.s1p d.s1p
printf '# Hz S DB R 50\n1 1 30\n' >e.s1p
printf '# Hz S DB R 50\n1 1.0000000000000002 30\n' >f.s1p
touchstone2 diff e.s1p f.s1p
