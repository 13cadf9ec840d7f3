# only on POSIX systems: pipes have other names elsewhere
mkfifo pipe
touchstone2 convert examples/good/antenna.s1p -o pipe --force
