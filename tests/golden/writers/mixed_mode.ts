! Two pairs. MIXED
[Version] 2.0
# GHz S RI R 50
[Number of Ports] 3
[Mixed-Mode Order] D1,3 S2 C1,3
[Number of Frequencies] 1
[Network Data]
1 11 0 12 0 13 0
21 0 22 0 23 0
31 0 32 0 33 0
[End]
