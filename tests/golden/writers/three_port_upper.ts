! Z-parameters in ohms, the upper triangle.
[Version] 2.0
# kHz Z MA R 50
[Number of Ports] 3
[Matrix Format] Upper
[Number of Frequencies] 2
[Network Data]
1  100 1  125 2  150 3
          200 4  250 5
                 300 6
2  10 -1  12.5 -2  15 -3
          20 -4    25 -5
                   30 -6
[End]
