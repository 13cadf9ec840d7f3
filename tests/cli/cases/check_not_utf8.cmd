# only on POSIX systems: names of any bytes
# A name of any bytes finds its file, in a folder, too.
mkdir tree
name=$(printf 'tree/Stra\337e.s1p')
cp examples/good/antenna.s1p "$name"
touchstone2 check "$name" tree
