touchstone2 check ''
