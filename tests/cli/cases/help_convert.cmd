touchstone2 convert --help
