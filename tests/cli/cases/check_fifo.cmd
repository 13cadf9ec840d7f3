# Nobody writes to it: waiting for a writer would take for ever.
mkdir tree
mkfifo tree/pipe.s1p
touchstone2 check tree tree/pipe.s1p
