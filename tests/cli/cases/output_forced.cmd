echo old >out.s1p
touchstone2 convert examples/good/antenna.s1p -o out.s1p --force
touchstone2 check out.s1p
ls -A
