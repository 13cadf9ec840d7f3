touchstone2 ports examples/good/coupler.s4p --set 0=a -o out.s4p
