# only on POSIX systems: it needs a terminal of 200 columns
script -qec 'stty cols 200; touchstone2 explain W2010' /dev/null </dev/null
