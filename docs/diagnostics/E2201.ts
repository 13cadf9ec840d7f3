[Number of Ports] 2
