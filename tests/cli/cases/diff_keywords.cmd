# Mixed mode, references port by port, matrix format.
sed 's/\[Mixed-Mode Order\].*/[Mixed-Mode Order] D1,3 C1,3 D2,4 C2,4/' examples/good/differential_pair.s4p >order.s4p
touchstone2 diff examples/good/differential_pair.s4p order.s4p
sed 's/75 50 50/75 50 60/' examples/good/splitter.s3p >reference.s3p
touchstone2 diff examples/good/splitter.s3p reference.s3p
touchstone2 diff examples/good/splitter.s3p reference.s3p --tol 0.16 | tail -n 1
touchstone2 diff examples/good/splitter.s3p reference.s3p --tol 0.17 | tail -n 1
# Ports that are single-ended by keyword are as good as without it.
printf '[Version] 2.0\n# GHz S RI\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Mixed-Mode Order] S1\n[Network Data]\n1 0.5 0\n[End]\n' >single.ts
printf '# GHz S RI R 50\n1 0.5 0\n' >plain.s1p
touchstone2 diff single.ts plain.s1p
touchstone2 diff single.ts examples/good/differential_pair.s4p
