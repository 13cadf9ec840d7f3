# only on POSIX systems: needs $FAULTS
# Nothing can be put in the place of the missing page: the tool ends, but says why.
cp examples/good/amplifier.s2p cut.s2p
FAULT=cut-no-memory FAULT_FILE=cut.s2p LD_PRELOAD=$FAULTS touchstone2 check -j1 examples/good/inductor.s1p cut.s2p
