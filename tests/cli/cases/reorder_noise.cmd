touchstone2 reorder examples/good/amplifier.s2p --order 2,1 -o turned.s2p
echo "exit $?"
touchstone2 reorder examples/good/amplifier.s2p --order 1,2 -o same.s2p
