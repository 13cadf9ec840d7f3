touchstone2 explain e1003
