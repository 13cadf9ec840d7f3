[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Number of Frequencies] 1
[Network Data]
1 1 2 3 4 5 6 7 8
[End]
