[Version] 2.0
# GHz S RI R 50
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 6
[Number of Noise Frequencies] 2
[Network Data]
1 0.9 -10 0.1 15 0.01 1 0.8 -1
2 0.9 -20 0.1 25 0.01 2 0.8 -2
3 0.9 -30 0.1 35 0.01 3 0.8 -3
4 0.9 -40 0.1 45 0.01 4 0.8 -4
5 0.9 -50 0.1 55 0.01 5 0.8 -5
6 0.9 -60 0.1 65 0.01 6 0.8 -6
[Noise Data]
0.5 1 0.3 20 0.4
6 -1 .3 20 .4
[End]
