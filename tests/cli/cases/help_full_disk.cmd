touchstone2 --help >/dev/full
