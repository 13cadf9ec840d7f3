[Version] 2.0
# GHz S RI R 50
[Number of Ports] 4
[Number of Frequencies] 1
[Mixed-Mode Order] D1,2 C1,2 S4 S3
[Network Data]
1 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 
[End]
