# only on POSIX systems: a limit of the shell
echo old >out.s4p
(
    ulimit -f 1
    touchstone2 convert examples/good/coupler.s4p -o out.s4p --force
    echo "exit $?"
    touchstone2 convert examples/good/coupler.s4p -o new.s4p
    echo "exit $?"
)
cat out.s4p
ls -A
