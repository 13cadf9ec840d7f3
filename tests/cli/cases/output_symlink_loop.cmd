# only on POSIX systems: links
ln -s loop.s1p loop.s1p
touchstone2 convert examples/good/antenna.s1p -o loop.s1p --force
