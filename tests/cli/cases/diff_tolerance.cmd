# At the tolerance and just above it: below 1 it is absolute, above relative.
printf '# GHz S RI R 50\n1 0.5 0\n' >half.s1p
printf '# GHz S RI R 50\n1 0.25 0\n' >quarter.s1p
printf '# GHz S RI R 50\n1 0 8\n' >eight.s1p
printf '# GHz S RI R 50\n1 0 6\n' >six.s1p
for pair in 'half quarter' 'six eight'; do
    set -- $pair
    touchstone2 diff $1.s1p $2.s1p --tol 0.25 | tail -n 1
    touchstone2 diff $1.s1p $2.s1p --tol 0.24999999999999997 | tail -n 1
done
# Admittances are measured in 1 / R: 1 mS is a twentieth of it.
printf '[Version] 2.0\n# GHz Y RI R 50\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Network Data]\n1 %s 0\n[End]\n' 0.010 >ten.ts
sed 's/0.010/0.011/' ten.ts >eleven.ts
touchstone2 diff ten.ts eleven.ts --tol 0.0501 | tail -n 1
touchstone2 diff ten.ts eleven.ts --tol 0.0499 | tail -n 1
# Of two reference impedances the greater one counts, in either order.
printf '[Version] 2.0\n# GHz Z RI R 50\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Network Data]\n1 10 0\n[End]\n' >small.ts
sed -e 's/R 50/R 100/' -e 's/^1 10/1 20/' small.ts >great.ts
for pair in 'small great' 'great small'; do
    set -- $pair
    touchstone2 diff $1.ts $2.ts --tol 0.1 | tail -n 1
    touchstone2 diff $1.ts $2.ts --tol 0.099 | tail -n 1
done
