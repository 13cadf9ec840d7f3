# Malformed bytes in the path, the token and the message become U+FFFD.
name=$(printf 'Stra\337e.s1p')
printf '# GHz S RI R 50\n! caf\351\n1 0.5 \265\n' >"$name"
touchstone2 check --json "$name"
