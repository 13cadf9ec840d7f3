[Version] 2.0
# GHz S MA R 50
[Number of Ports] 2
[Two-Port Data Order] 21,12
