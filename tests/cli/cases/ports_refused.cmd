touchstone2 ports examples/broken/missing_pair.s2p --set 1=in -o out.s2p
echo "exit $?"
ls
