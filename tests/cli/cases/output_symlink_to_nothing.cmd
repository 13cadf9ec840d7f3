# only on POSIX systems: links
ln -s "$PWD/new.s1p" link.s1p
touchstone2 convert examples/good/antenna.s1p -o link.s1p
touchstone2 check new.s1p
test -L link.s1p
