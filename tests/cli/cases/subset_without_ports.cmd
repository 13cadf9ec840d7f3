touchstone2 subset examples/good/coupler.s4p -o out.s4p
