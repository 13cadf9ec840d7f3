# only on POSIX systems: needs $FAULTS
cp examples/good/amplifier.s2p grown.s2p
FAULT=change FAULT_FILE=grown.s2p LD_PRELOAD=$FAULTS touchstone2 check grown.s2p
