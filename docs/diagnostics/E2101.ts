[Version] 2.0
