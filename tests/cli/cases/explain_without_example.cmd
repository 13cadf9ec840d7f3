touchstone2 explain E1001
