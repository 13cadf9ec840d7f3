[Version] 2.0
# MHz H DB
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 1
[Network Data]
1 1 2 3 4 5 6 7 8
[End]
