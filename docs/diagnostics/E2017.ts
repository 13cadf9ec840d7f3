[Version] 2.0
# GHz S MA R 50
[Number of Ports] 1
[Two-Port Data Order] 12_21
