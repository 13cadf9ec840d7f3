# only on POSIX systems: the library of faults
# The tool ends by the signal, the old file stays, and nothing else does.
ulimit -c 0
for fault in TERM INT HUP QUIT; do
    echo old >out.s1p
    # Not the shell's child, so that the shell has nothing to say about it.
    python3 -c 'import subprocess, sys; print(subprocess.run(sys.argv[1:]).returncode)' \
        env FAULT=$fault "LD_PRELOAD=$FAULTS" touchstone2 convert examples/good/antenna.s1p -o out.s1p --force
    cat out.s1p
done
ls -A
