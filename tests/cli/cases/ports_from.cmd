# Ports that the list leaves out keep their names; --set goes before the list.
printf '3=three\r\n\r\n1=one\n4=' >names.txt
touchstone2 ports examples/good/coupler.s4p --from names.txt --set 1=uno -o named.s4p
touchstone2 ports named.s4p
