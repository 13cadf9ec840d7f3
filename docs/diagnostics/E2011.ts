[Version] 2.0
# GHz S MA R 50
[Number of Ports] 1
[Number of Frequencies] 1
[Network Data]
 1 0.5 -30
