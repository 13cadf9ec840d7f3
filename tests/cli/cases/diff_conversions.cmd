# A file and its own conversion are equal: every version, and with fewer digits within a tolerance.
for file in examples/good/*; do
    for version in v1 v2; do
        touchstone2 convert "$file" --to $version -o all --force 2>/dev/null || continue
        touchstone2 diff "$file" all >page || cat page
        for digits in 5 9; do
            touchstone2 convert "$file" --to $version --precision $digits -o few --force 2>/dev/null
            tolerance=1e-$((digits - 3))  # decibels and degrees have their digits in front of the point
            touchstone2 diff "$file" few --tol $tolerance >page || cat page
        done
    done
done
