# Identical files, and a file with itself from standard input.
touchstone2 diff examples/good/amplifier.s2p examples/good/amplifier.s2p
touchstone2 diff - examples/good/filter.s2p <examples/good/filter.s2p
touchstone2 diff --strict examples/good/filter.s2p - <examples/good/filter.s2p
