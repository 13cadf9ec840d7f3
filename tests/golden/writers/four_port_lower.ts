! Port[1] = a
! Port[2] = b
! Port[3] = c
! Port[4] = d
[Version] 2.0
# Hz S RI R 50
[Number of Ports] 4
[Matrix Format] Lower
[Number of Frequencies] 1
[Network Data]
1 11 0
21 1 22 2
31 3 32 4 33 5
41 6 42 7 43 8 44 9
[End]
