# One object, whether the files differ or not.
touchstone2 diff examples/good/filter.s2p examples/good/filter.s2p --json
sed -e 's/^! Port\[1\] = Antenna/! Port[1] = Mast/' -e 's/75 50/75 60/' -e 's/^50 /60 /' -e 's/1.38/1.48/' examples/good/antenna_amplifier.ts >changed.ts
touchstone2 diff examples/good/antenna_amplifier.ts changed.ts --json --tol 0.01 --frequency-tol 1e-6
sed 's/0.2827/0.2727/' examples/good/coupler.s4p >changed.s4p
touchstone2 diff examples/good/coupler.s4p changed.s4p --json
