[Version] 2.0
# GHz S MA R 50
[Number of Ports] 2
[Mixed-Mode Order] D1,2 C2,1
[Network Data]
