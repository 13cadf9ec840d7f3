mkdir locked
chmod 555 locked
touchstone2 convert examples/good/antenna.s1p -o locked/out.s1p
