cp examples/good/antenna.s1p locked.s1p
chmod 000 locked.s1p
touchstone2 check locked.s1p
