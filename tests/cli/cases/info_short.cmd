# Columns below each other, whatever the lengths of the paths.
touchstone2 info --short examples
echo "exit $?"
touchstone2 info --short - examples/good/filter.s2p <examples/good/amplifier.s2p
printf '# GHz\n! none\n' >none.s1p
printf '[Version] 2.0\n# kHz S RI\n[Number of Ports] 6\n[Number of Frequencies] 1\n[Reference] 50 50 50 50 50 50.123456789\n[Network Data]\n1' >many.ts
for cell in 1 2 3 4 5 6; do echo ' 0 0 0 0 0 0 0 0 0 0 0 0' >>many.ts; done
echo '[End]' >>many.ts
touchstone2 info --short none.s1p many.ts
