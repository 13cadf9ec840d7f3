for order in 1,2,3 1,2,3,4,4 1,1,2,3 1,2,3,5 0,1,2,3 4,3,2,1=a 1,,2,3 4321; do
    touchstone2 reorder examples/good/coupler.s4p "--order=$order" -o out.s4p || echo "exit $?"
done
