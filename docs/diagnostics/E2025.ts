[Version] 2.0
# GHz H MA R 50
[Number of Ports] 2
[Mixed-Mode Order] D1,2 C1,2
