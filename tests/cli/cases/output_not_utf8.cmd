# only on POSIX systems: names of any bytes
name=$(printf 'Stra\337e.s1p')
touchstone2 convert examples/good/antenna.s1p -o "$name"
touchstone2 check --quiet "$name"
touchstone2 convert examples/good/antenna.s1p -o "$name"
