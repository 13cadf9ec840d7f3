touchstone2 ports examples/good/coupler.s4p --set 2 -o out.s4p
