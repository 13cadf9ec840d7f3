# only on POSIX systems: the library of faults
# nohup: a signal that was ignored before stays ignored.
trap '' HUP
FAULT=HUP LD_PRELOAD=$FAULTS touchstone2 convert examples/good/antenna.s1p -o out.s1p
touchstone2 check out.s1p
