touchstone2 check
