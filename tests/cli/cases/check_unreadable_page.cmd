# only on POSIX systems: needs $FAULTS
FAULT=unreadable FAULT_FILE=examples/good/amplifier.s2p LD_PRELOAD=$FAULTS \
    touchstone2 check examples/good/amplifier.s2p
