# Evenly spaced is a matter of decimals, and exact; two points make no step.
show() {
    echo '# GHz S RI R 50' >f.s1p
    for frequency; do echo "$frequency 0 0" >>f.s1p; done
    touchstone2 info f.s1p | grep ^points
}
show 0.1 0.2 0.3 0.4
show 0 0.095 0.19
show 1 2
show 1 2 3.0000000000000004
show 0 0.333 0.667 1
show 1e-15 2e-15 3e-15
show 1e3 1e4 19e3
show 0 1e-20 1e5
show 1.00000000000000001 2 3
show 300e-6 1.50015 3
echo '# MHz S RI R 50' >f.s1p
awk 'BEGIN { for (k = 0; k < 1601; ++k) printf "%.6f 0 0\n", 10 + k * 1.25 }' >>f.s1p
touchstone2 info f.s1p | grep ^points
echo '2010.000001 0 0' >>f.s1p
touchstone2 info f.s1p | grep ^points
