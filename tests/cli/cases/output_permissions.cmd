# only on POSIX systems: permissions as three digits
# A new file has those of any new file, an old one keeps its own.
umask 027
touchstone2 convert examples/good/antenna.s1p -o new.s1p
stat -c %a new.s1p
for mode in 600 664 444; do
    chmod $mode new.s1p
    touchstone2 convert examples/good/antenna.s1p -o new.s1p --force
    stat -c %a new.s1p
done
