# only on POSIX systems: needs $FAULTS
cp examples/good/amplifier.s2p cut.s2p
FAULT=cut FAULT_FILE=cut.s2p LD_PRELOAD=$FAULTS touchstone2 check cut.s2p examples/good/inductor.s1p
