# Whatever form the names had before, they get one; the rest of the head stays where it is.
printf '!first\n!PORT 1: 1: in\n!PORT 2: 1: out\n!last\n# GHz S RI R 50\n1 1 2 3 4 5 6 7 8\n' >two.s2p
touchstone2 ports two.s2p --set 2=RF-out -o named.s2p
cat named.s2p
touchstone2 ports named.s2p
