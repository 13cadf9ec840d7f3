! Version 2 with everything a two-port can have: an antenna amplifier from 75 ohm to 50 ohm with noise data.
! Port[1] = Antenna
! Port[2] = Receiver
[Version] 2.0
# MHz S DB
[Number of Ports] 2
[Two-Port Data Order] 21_12
[Number of Frequencies] 8
[Number of Noise Frequencies] 3
[Reference] 75 50
[Begin Information]
Supply 5 V, 42 mA, 23 degrees. Readers skip this text.
[Manufacturer] none
[End Information]
[Network Data]
50    -20.355  -40.50    21.473   -3.71   -41.766   15.00   -18.167  153.50
100   -19.828  -46.00    21.850  -36.81   -41.598   10.00   -17.924  147.00
200   -18.862  -57.00    21.896  -88.85   -41.270    0.00   -17.458  134.00
400   -17.202  -79.00    21.700  174.85   -40.649  -20.00   -16.595  108.00
600   -15.810 -101.00    21.359   80.72   -40.070  -40.00   -15.810   82.00
800   -14.610 -123.00    20.918  -12.38   -39.527  -60.00   -15.090   56.00
1000  -13.556 -145.00    20.409 -104.66   -39.016  -80.00   -14.425   30.00
1200  -12.616 -167.00    19.858  163.80   -38.533 -100.00   -13.807    4.00
[Noise Data]
50    1.14  0.183  44.5  13.90
400   1.38  0.204  76.0  13.20
1200  1.94  0.252  148.0  11.60
[End]
