# There and back: the same text, so the same bits.
for file in amplifier.s2p coupler.s4p transistor_y.s2p inductor.s1p transistor_h.s2p; do
    touchstone2 convert "examples/good/$file" -o one 2>/dev/null
    touchstone2 convert one --to v2 -o two
    touchstone2 convert two --to v1 -o three
    cmp one three
    rm one two three
done
