cat examples/broken/missing_end.ts | touchstone2 check -
