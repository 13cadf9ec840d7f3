touchstone2 --version | sed 's/ [0-9]*\.[0-9]*\.[0-9]*$/ NUMBER/'
