touchstone2 info examples/good/connector.s4p
