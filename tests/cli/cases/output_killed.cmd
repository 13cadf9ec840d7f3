# only on POSIX systems: it kills the tool between writing and renaming
# The old file is whole, what was written lies beside it, and the next run does its work.
ulimit -c 0
echo old >out.s1p
python3 -c 'import subprocess, sys; print(subprocess.run(sys.argv[1:]).returncode)' \
    env FAULT=KILL "LD_PRELOAD=$FAULTS" touchstone2 convert examples/good/antenna.s1p -o out.s1p --force
cat out.s1p
ls -A | wc -l
touchstone2 convert examples/good/antenna.s1p -o out.s1p --force && touchstone2 check out.s1p
