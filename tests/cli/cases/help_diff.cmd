touchstone2 diff --help
