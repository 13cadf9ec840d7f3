printf '1=in\nout\n' >names.txt
touchstone2 ports examples/good/coupler.s4p --from names.txt -o out.s4p
echo "exit $?"
printf '1=in\n1=out\n' >names.txt
touchstone2 ports examples/good/coupler.s4p --from names.txt -o out.s4p
