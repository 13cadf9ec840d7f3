[Version] 2.0
# GHz S MA R 50
[Number of Ports] 2.0
