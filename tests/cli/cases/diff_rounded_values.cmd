# Values are shown with six digits when these tell them apart.
touchstone2 diff examples/good/filter.s2p examples/good/amplifier.s2p
