# only on POSIX systems: the library of faults
# Somebody else creates OUT while it is being written: theirs stays.
FAULT=appear FAULT_FILE=out.s1p LD_PRELOAD=$FAULTS touchstone2 convert examples/good/antenna.s1p -o out.s1p
echo "exit $?"
cat out.s1p
ls -A
