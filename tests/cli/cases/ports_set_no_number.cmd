for port in a=1 =1 -1=a +1=a 1.5=a 99999999999999999999=a ' 1=a'; do
    touchstone2 ports examples/good/coupler.s4p "--set=$port" -o out.s4p || echo "exit $?"
done
