# only on POSIX systems: needs /dev/full
for format in text gcc json sarif; do
    touchstone2 check -j4 --format $format examples >/dev/full 2>err
    echo $?
    tail -1 err
done
