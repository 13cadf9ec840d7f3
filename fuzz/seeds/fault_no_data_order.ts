! Version 2 wants to know the order of S12 and S21.
[Version] 2.0
# MHz S RI R 50
[Number of Ports] 2
[Number of Frequencies] 1
[Network Data]
100 0.098 -0.021 0.881 -0.312 0.881 -0.312 0.102 -0.034
[End]
