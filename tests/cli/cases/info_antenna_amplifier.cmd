touchstone2 info examples/good/antenna_amplifier.ts
