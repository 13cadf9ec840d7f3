[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 1
[Number of Noise Frequencies] 1
[Begin Information]
Not written.
[End Information]
[Network Data]
1 11 -11 12 -12 21 -21 22 -22
[Noise Data]
0.5 1 0.1 2 12.5
[End]
