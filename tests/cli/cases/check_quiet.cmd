touchstone2 check --quiet examples/broken/missing_end.ts examples/good
