touchstone2 ports --help
