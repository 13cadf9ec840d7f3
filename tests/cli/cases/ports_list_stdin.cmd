touchstone2 ports - <examples/good/antenna_amplifier.ts
