touchstone2 check examples/good
