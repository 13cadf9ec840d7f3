# only on POSIX systems: a folder as standard input
# The other files are told of, and the exit code says that one is missing.
touchstone2 info --short - examples/good/antenna.s1p <examples
