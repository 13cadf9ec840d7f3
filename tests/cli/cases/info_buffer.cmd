touchstone2 info examples/good/buffer.ts
