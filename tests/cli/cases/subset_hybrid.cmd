echo old >out.s1p
touchstone2 subset examples/good/transistor_h.s2p --ports 1 -o out.s1p --force
echo "exit $?"
touchstone2 subset examples/good/buffer.ts --ports 2,1 -o out.s1p --force
echo "exit $?"
cat out.s1p
