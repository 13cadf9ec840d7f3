# Comments that the writers make anew and those in an information section are not counted.
printf '!head\n[Version] 2.0\n# GHz S RI ! options\n!between\n[Number of Ports] 1\n[Number of Frequencies] 1\n[begin information]\n! inside\n[End Information]\n[Network Data]\n1 1 2 ! line end\n[End]\n' >notes.ts
touchstone2 convert notes.ts -o out.ts
touchstone2 convert out.ts -o again.ts
cat again.ts
touchstone2 convert - -o - <notes.ts >piped.ts
cmp again.ts piped.ts
