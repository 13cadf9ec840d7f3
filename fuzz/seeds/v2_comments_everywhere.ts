! Port[1] = in
! MIXED
[Version] 2.0
# GHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 1
! between

[Network Data]
! before
1 2 3 ! at
! behind
[End] ! e
! f

