touchstone2 explain w2005 e2311
