# Arguments in their own order, a folder's files sorted, a file named directly whatever its ending.
cp examples/good/antenna.s1p antenna.dat
touchstone2 check examples/good/filter.s2p antenna.dat examples/good/amplifier.s2p
