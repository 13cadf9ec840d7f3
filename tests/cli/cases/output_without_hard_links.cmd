# only on POSIX systems: the library of faults
FAULT=no-links LD_PRELOAD=$FAULTS touchstone2 convert examples/good/antenna.s1p -o out.s1p
touchstone2 check out.s1p
ls -A
