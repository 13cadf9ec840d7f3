[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 1
[Reference] 50 75
[Mixed-Mode Order] D1,2 C1,2
[Network Data]
1 1 2 3 4 5 6 7 8
[End]
