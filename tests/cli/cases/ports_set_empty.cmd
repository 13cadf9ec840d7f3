# An empty name removes one.
touchstone2 ports examples/good/coupler.s4p --set 2= --set 4= -o named.s4p
touchstone2 ports named.s4p
