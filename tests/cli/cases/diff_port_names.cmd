# Names are content, whatever comments they stand in.
touchstone2 ports examples/good/coupler.s4p --set 2=through --set 4= -o named.s4p 2>notes
touchstone2 diff examples/good/coupler.s4p named.s4p
echo "exit $?"
sed 's/^! Port\[\(.*\)\] = /! Port \1 = /' examples/good/coupler.s4p >spelled.s4p
touchstone2 diff examples/good/coupler.s4p spelled.s4p
echo "exit $?"
