# Only .ts and .sNp, in any case; subfolders, also with such a name; sorted by path.
mkdir -p tree/b.s2p/deep tree/A
cp examples/good/antenna.s1p tree/z.S1P
cp examples/good/antenna.s1p tree/a.s10P
cp examples/good/buffer.ts tree/A/x.Ts
cp examples/good/antenna.s1p tree/b.s2p/deep/y.s1p
for name in no.sp no.s2px no.txt no.s1p.bak s2p .s2p; do echo not one >tree/$name; done
touchstone2 check tree
touchstone2 check tree/
