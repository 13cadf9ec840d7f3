# Scaled digit by digit: 4.1 GHz, not 4.0999999999999995 GHz.
show() {
    printf '# %s S RI R 50\n%s 0 0\n%s 0 0\n' "$1" "$2" "$3" >f.s1p
    touchstone2 info f.s1p | grep ^points
}
show GHz 4.1 8.2
show MHz 0 16100
show Hz 0.05 999
show kHz 0.3 1e3
show GHz 0.1 1234.5678901234567
show GHz 1e-15 1e12
show GHz 1e300 1e307
