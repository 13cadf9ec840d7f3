! The file was cut off: "[End]" is missing.
[Version] 2.0
# MHz S RI R 50
[Number of Ports] 1
[Number of Frequencies] 2
[Network Data]
100 0.512 -0.233
200 0.471 -0.305
