# With nothing to write, a closed pipe does not matter.
mkfifo pipe
exec 3<>pipe 4>pipe 3<&-
touchstone2 check --quiet examples/good >&4
