# Columns count characters: the second warning stands behind one of two bytes.
printf '! caf\303\251 \351 x \001\n# GHz S RI R 50\n1 2 3\n' > 'a b%.s1p'
touchstone2 check --format sarif 'a b%.s1p'
