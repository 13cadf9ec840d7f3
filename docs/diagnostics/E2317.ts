[Version] 2.0
# GHz S MA R 50
[Number of Ports] 2
[Mixed-Mode Order] S1 S1
[Network Data]
