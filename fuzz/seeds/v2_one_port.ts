[Version] 2.0
# GHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 8
[Network Data]
1.5 0.125 -0.175
2.5 0.225 -0.275
3.5 0.325 -0.375
4.5 0.425 -0.475
5.5 0.525 -0.575
6.5 0.625 -0.675
7.5 0.725 -0.775
8.5 0.825 -0.875
[End]
