# What could steer a terminal or split a line is shown as what it is.
printf '# GHz S RI R 50\n1 \033[2J 3\n' > odd.s1p
printf '! caf\303\251 \351\n# GHz S RI R 50\n1 2 3\n' > coffee.s1p
touchstone2 check --format gcc odd.s1p coffee.s1p
