[Version] 2.0
 [Number of Ports] 1
