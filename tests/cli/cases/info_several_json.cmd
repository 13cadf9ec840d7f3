touchstone2 info --json examples/broken/missing_end.ts examples/good/antenna.s1p none.ts
