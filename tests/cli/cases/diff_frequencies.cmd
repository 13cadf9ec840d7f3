# Frequencies of one file only, the first few of them, with all their digits.
printf '# GHz S RI R 50\n1 1 0\n1.0000000000000002 1 0\n2 1 0\n3 1 0\n' >a.s1p
printf '# Hz S RI R 50\n1e9 1 0\n1000000001 1 0\n1000000002 1 0\n1000000003 1 0\n1000000004 1 0\n1000000005 1 0\n1000000006 1 0\n2e9 1 0\n' >b.s1p
touchstone2 diff a.s1p b.s1p
echo "exit $?"
printf '# GHz S RI R 50\n! none\n' >empty.s1p
touchstone2 diff empty.s1p empty.s1p | tail -n 1
