touchstone2 convert examples/broken/missing_pair.s2p --to v2 -o out.ts
echo "exit $?"
touchstone2 convert none.s2p --to v2 -o out.ts
echo "exit $?"
ls -A
