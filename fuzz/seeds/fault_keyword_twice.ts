[Version] 2.0
# GHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 1
[Matrix Format] Full
[Matrix Format] Full
[Network Data]
1 0.5 0.25
[End]
