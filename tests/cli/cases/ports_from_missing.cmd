touchstone2 ports examples/good/coupler.s4p --from none.txt -o out.s4p
