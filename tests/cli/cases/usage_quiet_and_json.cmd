touchstone2 check --quiet --json examples/good
