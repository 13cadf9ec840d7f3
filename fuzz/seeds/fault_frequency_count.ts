! Three points are announced, two are there.
[Version] 2.0
# MHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 3
[Network Data]
100 0.512 -0.233
200 0.471 -0.305
[End]
