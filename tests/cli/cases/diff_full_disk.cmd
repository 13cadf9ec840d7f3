# only on POSIX systems: /dev/full
touchstone2 diff examples/good/antenna.s1p examples/good/antenna.s1p >/dev/full
