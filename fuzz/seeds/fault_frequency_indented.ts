[Version] 2.0
# GHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 1
[Network Data]
 1 2 3
[End]
