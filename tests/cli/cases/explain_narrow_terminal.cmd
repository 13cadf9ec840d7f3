# only on POSIX systems: it needs a terminal of 40 columns
script -qec 'stty cols 40; touchstone2 explain W2010' /dev/null </dev/null
