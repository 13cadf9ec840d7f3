[Version] 2.0
# GHz S RI R 50
[Number of Ports] 3
[Number of Frequencies] 1
[Mixed-Mode Order] D1,2 D1,3 C1,2
[Network Data]
1 0.5 0.25
[End]
