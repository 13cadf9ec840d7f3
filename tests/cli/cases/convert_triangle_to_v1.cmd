touchstone2 convert examples/good/connector.s4p --to v1 -o full.s4p
tail -n 4 full.s4p
touchstone2 info full.s4p | grep -e version -e matrix
