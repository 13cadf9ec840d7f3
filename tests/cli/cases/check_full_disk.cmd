touchstone2 check examples/good >/dev/full
