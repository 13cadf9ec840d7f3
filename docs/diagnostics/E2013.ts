[Version] 2.1
