# Rows that differ, rows of one file only, no noise at all.
sed -e 's/1.54 /1.55 /' -e 's/^6\(.*1.26\)/6.5\1/' -e 's/0.530/0.540/' -e 's/0.240/0.245/' examples/good/amplifier.s2p >changed.s2p
touchstone2 diff examples/good/amplifier.s2p changed.s2p
sed '/^! noise/,$d' examples/good/amplifier.s2p >silent.s2p
touchstone2 diff examples/good/amplifier.s2p silent.s2p
# Relative to the reference in version 1 only.
printf '# GHz S RI R 33.3\n1 0 0 0 0 0 0 0 0\n1 1 0.5 90 0.1\n' >noise.s2p
touchstone2 convert noise.s2p --to v2 -o noise.ts
touchstone2 diff noise.s2p noise.ts | tail -n 1
