touchstone2 check examples/broken
