touchstone2 check --format sarif examples/broken examples/good missing.s2p
