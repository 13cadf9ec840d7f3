touchstone2 ports examples/good/coupler.s4p --set 2=a --set 2=b -o out.s4p
