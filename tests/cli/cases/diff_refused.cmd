# What cannot be compared is trouble, and both files are read.
touchstone2 diff examples/broken/missing_pair.s2p examples/broken/missing_end.ts
echo "exit $?"
touchstone2 diff examples/good/filter.s2p none.s2p
echo "exit $?"
touchstone2 diff --json none.s2p examples/good/antenna.s1p
echo "exit $?"
