# only on POSIX systems: the library of faults
# The old file stays, and nothing else does.
for fault in full-disk bad-disk no-rename; do
    echo old >out.s1p
    FAULT=$fault LD_PRELOAD=$FAULTS touchstone2 convert examples/good/antenna.s1p -o out.s1p --force
    echo "$fault: exit $?"
    cat out.s1p
    rm out.s1p
    FAULT=$fault LD_PRELOAD=$FAULTS touchstone2 convert examples/good/antenna.s1p -o out.s1p
    echo "$fault: exit $?"
    ls -A
    rm -f out.s1p
done
