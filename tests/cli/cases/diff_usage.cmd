touchstone2 diff - -
echo "exit $?"
touchstone2 diff a.s2p
echo "exit $?"
for tolerance in -1 inf nan x; do
    touchstone2 diff a.s2p b.s2p "--tol=$tolerance"
    touchstone2 diff a.s2p b.s2p "--frequency-tol=$tolerance"
done
