# Rounding of the conversion is no difference, and -6000 dB are zero; 5e-13 is one.
printf '# GHz S DB R 50\n1 -20 -90\n2 -6000 0\n3 6 720\n' >db.s1p
printf '# GHz S RI R 50\n1 0 -0.1\n2 0 0\n3 1.9952623149688795 0\n' >ri.s1p
printf '# GHz S MA R 50\n1 0.1 270\n2 0 0\n3 1.9952623149688797 0\n' >ma.s1p
for pair in 'db ri' 'db ma' 'ri ma'; do
    set -- $pair
    touchstone2 diff $1.s1p $2.s1p
done
printf '# GHz S RI R 50\n1 0 -0.1\n2 0 0\n3 1.9952623149699 0\n' >more.s1p
touchstone2 diff db.s1p more.s1p | tail -n 1
sed s/9699/9690/ more.s1p >near.s1p
touchstone2 diff db.s1p near.s1p | tail -n 1
