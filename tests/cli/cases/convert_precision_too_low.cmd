# Two frequencies become one: nothing is written.
printf '# GHz S RI R 50\n1.001 1 2\n1.002 1 2\n' >close.s1p
touchstone2 convert close.s1p --precision 3 -o out.s1p
echo "exit $?"
ls
