# Mixed mode, references port by port, matrix format.
sed 's/\[Mixed-Mode Order\].*/[Mixed-Mode Order] D1,3 C1,3 D2,4 C2,4/' examples/good/differential_pair.s4p >order.s4p
touchstone2 diff examples/good/differential_pair.s4p order.s4p
sed 's/75 50 50/75 50 60/' examples/good/splitter.s3p >reference.s3p
touchstone2 diff examples/good/splitter.s3p reference.s3p
touchstone2 diff examples/good/splitter.s3p reference.s3p --tol 0.16 | tail -n 1
touchstone2 diff examples/good/splitter.s3p reference.s3p --tol 0.17 | tail -n 1
