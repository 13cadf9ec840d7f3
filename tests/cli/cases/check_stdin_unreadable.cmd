# only on POSIX systems: a folder as standard input
touchstone2 check examples/good/antenna.s1p - <examples
