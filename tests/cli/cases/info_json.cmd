touchstone2 info --json examples/good/antenna_amplifier.ts
touchstone2 info --json examples/good/differential_pair.s4p
