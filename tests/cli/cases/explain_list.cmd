touchstone2 explain --list
