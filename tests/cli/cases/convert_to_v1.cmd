touchstone2 convert examples/good/buffer.ts --to v1 -o -
