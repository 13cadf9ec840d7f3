mkdir empty
touchstone2 check empty
