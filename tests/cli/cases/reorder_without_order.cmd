touchstone2 reorder examples/good/coupler.s4p -o out.s4p
