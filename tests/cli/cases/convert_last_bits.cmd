# Nothing of a double is lost but by the multiplication, and a note says so; not if the digits
# were chosen.
touchstone2 convert examples/good/buffer.ts --to v1 -o auto.s2p
touchstone2 convert examples/good/buffer.ts --to v1 --precision 17 -o chosen.s2p
cmp auto.s2p chosen.s2p
