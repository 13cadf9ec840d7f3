# Content decides; what is not the same parameter is not compared.
printf '# GHz S RI R 50\n1 0.5 0\n' >s.s1p
printf '# GHz S RI R 75\n1 0.5 0\n' >s75.s1p
printf '# GHz Z RI R 50\n1 0.5 0\n' >z.s1p
touchstone2 diff s.s1p s75.s1p
echo "exit $?"
touchstone2 diff s.s1p z.s1p
echo "exit $?"
touchstone2 diff s.s1p examples/good/filter.s2p
echo "exit $?"
