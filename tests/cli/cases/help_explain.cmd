touchstone2 explain --help
