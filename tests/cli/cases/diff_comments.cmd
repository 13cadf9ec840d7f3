# An empty line is not no line; control characters are made visible; the first few are shown.
printf '! a\n# GHz S RI R 50\n1 0.5 0\n' >one.s1p
printf '! a\n!\n! \033[31mred\n# GHz S RI R 50\n1 0.5 0\n' >three.s1p
printf '!1\n!2\n!3\n!4\n!5\n!6\n!7\n# GHz S RI R 50\n1 0.5 0\n' >seven.s1p
touchstone2 diff one.s1p three.s1p 2>warnings
touchstone2 diff one.s1p seven.s1p
