touchstone2 explain 2003
