mkdir -p tree/locked
cp examples/good/antenna.s1p tree
chmod 000 tree/locked
touchstone2 check tree
