# only on POSIX systems: devices have other names elsewhere
touchstone2 convert examples/good/antenna.s1p -o /dev/null --force
echo "exit $?"
test -c /dev/null
