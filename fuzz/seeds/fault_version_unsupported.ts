[Version] 2.1
# GHz
