# Descriptor 4 writes to a pipe whose only reader has gone.
mkfifo pipe
exec 3<>pipe 4>pipe 3<&-
touchstone2 convert examples/good/antenna.s1p -o - >&4
