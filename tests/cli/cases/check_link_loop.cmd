# only on POSIX systems: links
# A link to a folder is not followed below the one that was named, a broken link is a missing file.
mkdir tree
cp examples/good/antenna.s1p tree
ln -s . tree/again
ln -s . tree/again.s1p
ln -s antenna.s1p tree/linked.s1p
ln -s loop.s1p tree/loop.s1p
ln -s tree top
touchstone2 check top
