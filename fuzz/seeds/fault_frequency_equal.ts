[Version] 2.0
# GHz S RI
[Number of Ports] 1
[Number of Frequencies] 6
[Network Data]
1 .5 .25
2 .5 .25
2 .5 .25
3 .5 .25
4 .5 .25
5 .5 .25
[End]
