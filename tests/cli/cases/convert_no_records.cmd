# Valid, but no version 2 file can be without data.
printf '# GHz S RI R 50\n' >none.s1p
touchstone2 convert none.s1p -o -
echo "exit $?"
touchstone2 convert none.s1p --to v2 -o -
