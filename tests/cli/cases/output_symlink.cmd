# only on POSIX systems: links
# The link stays, and its target is replaced.
mkdir data
echo old >data/real.s1p
ln -s real.s1p data/second.s1p
ln -s data/second.s1p link.s1p
touchstone2 convert examples/good/antenna.s1p -o link.s1p
echo "exit $?"
touchstone2 convert examples/good/antenna.s1p -o link.s1p --force
readlink link.s1p data/second.s1p
touchstone2 check data/real.s1p
ls -A . data
