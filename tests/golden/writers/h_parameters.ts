! Only the diagonal is normalised: H11 is an impedance, H22 an admittance.
[Version] 2.0
# GHz H MA R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 1
[Network Data]
1 100 10 0.5 20 30 30 0.002 40
[End]
