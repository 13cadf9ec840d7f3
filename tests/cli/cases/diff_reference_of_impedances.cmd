# 100 ohm and 20 mS, relative to 50 ohm, relative to 30 ohm, and as they are.
for r in 50 30; do
    printf '# GHz Z MA R %s\n1 %s 10\n' $r "$(awk "BEGIN {printf \"%.17g\", 100 / $r}")" >z$r.s1p
    printf '# GHz Y DB R %s\n1 %s 10\n' $r "$(awk "BEGIN {printf \"%.17g\", 20 * log(0.02 * $r) / log(10)}")" >y$r.s1p
done
touchstone2 diff z50.s1p z30.s1p
touchstone2 diff y50.s1p y30.s1p | tail -n 1
touchstone2 convert z50.s1p --to v2 -o z.ts
touchstone2 diff z.ts z30.s1p | tail -n 1
touchstone2 convert y30.s1p --to v2 -o y.ts
touchstone2 diff y.ts y50.s1p | tail -n 1
