# One bit of one number: that cell, that frequency and no other.
cat >change.awk <<'END'
# Field 1 is the frequency; magnitudes are in even fields, angles in odd ones.
$1 == "#" || $1 ~ /^!/ { print; next }
NF == 9 && ++record == wanted { $field = bits[field % 2] }
{ print }
BEGIN { bits[0] = "0.30000000000000004"; bits[1] = "0.70000000000000007" }
END
make() {
    awk 'BEGIN {
        print "# GHz S MA R 50"
        for (k = 1; k <= 5; ++k) print k, "0.3 0.7 0.3 0.7 0.3 0.7 0.3 0.7"
    }'
}
make >file.s2p
for record in 1 3 5; do
    for field in 2 3 4 5 6 7 8 9; do
        awk -v wanted=$record -v field=$field -f change.awk file.s2p >bit.s2p
        touchstone2 diff file.s2p bit.s2p | grep -e ' GHz ' -e '^different' -e '^equal'
    done
done
