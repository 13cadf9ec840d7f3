# Row and column are told apart above nine ports; ten parameters are shown.
make() {
    awk -v ports=11 -v factor=$1 'BEGIN {
        print "# Hz S RI R 50"
        printf "1"
        for (cell = 0; cell < ports * ports; ++cell) print " 0.5 " factor * cell / 1024
    }'
}
make 0 >zero.s11p
make 1 >one.s11p
touchstone2 diff zero.s11p one.s11p
