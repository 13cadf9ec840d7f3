# One network in two forms: unit, version, format, order, matrix, comments.
cat >one.s2p <<'END'
! measured
# GHz S RI R 50
4.1 0.5 0 0 0.25 0 0.25 -0.5 0
8.2 0 1 0 0 0 0 1 0
END
cat >other.ts <<'END'
[Version] 2.0
# MHz S MA R 50
[Number of Ports] 2
[Two-Port Data Order] 12_21
[Number of Frequencies] 2
[Reference] 50 50
[Matrix Format] Lower
[Begin Information]
[End Information]
[Network Data]
4100 0.5 0 0.25 90 0.5 180
8200 1 90 0 45 1 -360
[End]
END
touchstone2 diff one.s2p other.ts
echo "exit $?"
touchstone2 diff one.s2p other.ts --strict | tail -n 1
touchstone2 diff one.s2p other.ts --strict >lines
echo "exit $?"
