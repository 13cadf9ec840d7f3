# only on POSIX systems: needs $FAULTS
cp examples/good/amplifier.s2p cut.s2p
FAULT=cut FAULT_FILE=cut.s2p LD_PRELOAD=$FAULTS touchstone2 convert cut.s2p --to v2 -o out.ts
echo $?
test -e out.ts && echo written
