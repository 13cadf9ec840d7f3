[Version] 2.0 # GHz S MA R 50
