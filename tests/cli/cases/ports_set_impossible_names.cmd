for name in 'RF out' "$(printf 'a\tb')" 'a!b' "$(printf 'caf\303\251')" "$(printf 'a\033b')"; do
    touchstone2 ports examples/good/coupler.s4p --set "1=$name" -o out.s4p || echo "exit $?"
done
ls
