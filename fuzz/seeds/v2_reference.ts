[Version] 2.0
# GHz S RI R 50
[Number of Ports] 3
[Number of Frequencies] 1
[Reference] 50 75
 0.01
[Network Data]
1 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 1 2 
[End]
