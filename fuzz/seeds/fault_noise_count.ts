[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 1
[Number of Noise Frequencies] 2
[Network Data]
1 1 2 3 4 5 6 7 8
[Noise Data]
0.5 1 0.3 20 0.4
[End]
