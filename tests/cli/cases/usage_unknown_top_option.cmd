touchstone2 --frobnicate
