[Version] 2.0
# GHz S MA R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 1
[Number of Noise Frequencies] 1
[Network Data]
2 0.1 0 0.9 -30 0.9 -30 0.1 0
[End]
