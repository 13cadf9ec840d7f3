for ports in 1,1 5 0 1=a=b,1 '1=a b' x=1; do
    touchstone2 subset examples/good/coupler.s4p "--ports=$ports" -o out.s4p || echo "exit $?"
done
