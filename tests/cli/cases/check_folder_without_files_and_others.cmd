mkdir empty
touchstone2 check empty examples/broken/missing_end.ts
