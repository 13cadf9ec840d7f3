touchstone2 check --format gcc examples/broken missing.s2p
