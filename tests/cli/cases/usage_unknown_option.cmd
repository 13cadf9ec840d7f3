touchstone2 check --frobnicate examples/good
