# A page for each file, a refused one in between, what cannot be read does not end it.
touchstone2 info examples/good/antenna.s1p examples/broken/missing_end.ts none.s2p examples/good/splitter.s3p
echo "exit $?"
mkdir empty
touchstone2 info empty examples/good/attenuator.s2p
echo "exit $?"
