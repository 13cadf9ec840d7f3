touchstone2 convert examples/good/amplifier.s2p --to v2 -o amplifier.ts
cat amplifier.ts
