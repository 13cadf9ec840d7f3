# Forty copies of the examples, so that jobs overtake each other.
for i in 1 2 3 4 5 6 7 8 9 10; do mkdir -p all/$i && cp -r examples/good examples/broken all/$i; done
for format in text gcc json sarif; do
    touchstone2 check --format $format --jobs 1 all >one.out 2>one.err
    for jobs in 2 3 16; do
        touchstone2 check --format $format -j $jobs all >many.out 2>many.err
        cmp one.out many.out && cmp one.err many.err && echo "$format $jobs"
    done
done
tail -1 one.out
touchstone2 check -j16 all 2>/dev/null | tail -1
