touchstone2 info --help
