touchstone2 ports examples/good/coupler.s4p --set 1=new -o examples/good/coupler.s4p
echo "exit $?"
touchstone2 ports examples/good/coupler.s4p --set 1=new -o examples/good/coupler.s4p --force
touchstone2 ports examples/good/coupler.s4p
ls -A examples/good | grep -c .
