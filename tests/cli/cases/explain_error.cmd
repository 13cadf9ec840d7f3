touchstone2 explain E2308
