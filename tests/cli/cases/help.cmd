touchstone2 --help
