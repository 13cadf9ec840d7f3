# Everything else that is printable is a name.
touchstone2 ports examples/good/coupler.s4p --set 1== --set '2=[2]' --set '3="a,b"' --set 4=Port5_x:: -o out.s4p
touchstone2 ports out.s4p
