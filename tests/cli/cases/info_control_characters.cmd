# A comment must not be able to steer the terminal.
printf '! \033[31mred\007\tA\n! Port[1] = \033[0mIn\n# Hz S RI R 50\n1 0.5 0\n' >escape.s1p
touchstone2 info escape.s1p
