touchstone2 check --help
