touchstone2 explain --list E2308
