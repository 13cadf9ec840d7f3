touchstone2 ports - --from - -o out.s1p <examples/good/antenna.s1p
