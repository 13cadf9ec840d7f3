# only on POSIX systems: needs $FAULTS
# The last line is an error of the old text; it is not told.
cp examples/broken/frequency_order.s2p grown.s2p
FAULT=change FAULT_FILE=grown.s2p LD_PRELOAD=$FAULTS touchstone2 check grown.s2p
