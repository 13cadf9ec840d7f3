printf '1=in\n' | touchstone2 ports examples/good/antenna.s1p --from - -o named.s1p
touchstone2 ports named.s1p
