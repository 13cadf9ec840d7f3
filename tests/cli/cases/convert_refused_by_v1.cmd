# The library's own message, and an OUT that stays as it was.
echo old >out.s2p
touchstone2 convert examples/good/antenna_amplifier.ts --to v1 -o out.s2p --force
echo "exit $?"
touchstone2 convert examples/good/differential_pair.s4p --to v1 -o out.s2p --force
echo "exit $?"
printf '[Version] 2.0\n# GHz S RI\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Mixed-Mode Order] S1\n[Network Data]\n1 1 2\n[End]\n' >mixed.ts
touchstone2 convert mixed.ts --to v1 -o out.s2p --force
echo "exit $?"
cat out.s2p
ls -A
