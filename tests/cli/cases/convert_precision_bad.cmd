for precision in 0 18 -1 x 6.5 ' 6'; do
    touchstone2 convert examples/good/antenna.s1p "--precision=$precision" -o out.s1p
done
