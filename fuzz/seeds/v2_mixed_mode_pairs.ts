[Version] 2.0
# GHz S RI R 50
[Number of Ports] 4
[Number of Frequencies] 1
[Reference] 50 50 75 75
[Mixed-Mode Order] D2,1 D3,4
 C3,4 C2,1
[Network Data]
1 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 
[End]
