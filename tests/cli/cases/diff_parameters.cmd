# The greatest difference of each parameter, the greatest first.
sed -e 's/3.1899/3.19/' -e 's/0.0471 /0.0571 /' -e 's/0.46 /0.5 /' examples/good/amplifier.s2p >changed.s2p
touchstone2 diff examples/good/amplifier.s2p changed.s2p
