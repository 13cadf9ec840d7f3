touchstone2 subset --help
