[Version] 2.0
#
[Number of Ports] 1
[Network Data]
1 2 3
[End]
