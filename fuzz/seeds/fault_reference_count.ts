[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Number of Frequencies] 1
[Reference] 50
[Network Data]
1 0.5 0.25
[End]
