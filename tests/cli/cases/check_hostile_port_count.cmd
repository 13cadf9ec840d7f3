# A port count that no memory holds is refused like any other mistake.
printf '[Version] 2.0\n#\n[Number of Ports] 2147483647\n[Number of Frequencies] 1\n[Network Data]\n1 0 0\n[End]\n' >huge.ts
touchstone2 check huge.ts examples/good/antenna.s1p
