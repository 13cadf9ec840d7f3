# A file with more diagnostics than a waiting job may keep, in front of and behind others.
{ i=0; while [ $i -lt 3000 ]; do printf '! %s\001\001\n' "a comment with two bytes that are not printable"; i=$((i + 1)); done
echo '# GHz S RI R 50'; echo '1 2 3'; } >much.s1p
for i in 1 2 3; do cp much.s1p much$i.s1p; done
touchstone2 check -j1 much.s1p examples/good/inductor.s1p much1.s1p much2.s1p much3.s1p >one.out 2>one.err
touchstone2 check -j4 much.s1p examples/good/inductor.s1p much1.s1p much2.s1p much3.s1p >many.out 2>many.err
cmp one.out many.out && cmp one.err many.err && cat many.out && wc -l <many.err
touchstone2 check -j4 --format gcc much.s1p much1.s1p much2.s1p much3.s1p | wc -l
