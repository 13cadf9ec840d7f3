# Warnings of the input are shown; the output is written.
printf '# GHz S RI R 50\n1 0.5 0' >warning.s1p
touchstone2 convert warning.s1p -o - | tail -n 1
