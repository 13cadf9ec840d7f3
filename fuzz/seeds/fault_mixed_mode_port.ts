[Version] 2.0
# GHz S RI R 50
[Number of Ports] 3
[Number of Frequencies] 1
[Mixed-Mode Order] S1 S2000000000 S3
[Network Data]
1 0.5 0.25
[End]
