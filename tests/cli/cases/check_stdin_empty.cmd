touchstone2 check - </dev/null
