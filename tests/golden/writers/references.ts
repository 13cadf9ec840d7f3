[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 1
[Reference] 75 50.125
[Network Data]
1 11 0 21 0 12 0 22 0
[End]
