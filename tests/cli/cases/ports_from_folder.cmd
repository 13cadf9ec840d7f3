touchstone2 ports examples/good/coupler.s4p --from examples -o out.s4p
