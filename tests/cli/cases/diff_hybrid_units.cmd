# Of H-parameters the first is an impedance, the last an admittance, the others are ratios; of
# G-parameters it is the other way round. All differ by 0.1 here, and R is 4 ohm.
for type in H G; do
    for value in 0.1 0.2; do
        printf '[Version] 2.0\n# Hz %s RI R 4\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n[Network Data]\n1 %s 0 %s 0 %s 0 %s 0\n[End]\n' $type $value $value $value $value >$value.ts
    done
    touchstone2 diff 0.1.ts 0.2.ts
done
