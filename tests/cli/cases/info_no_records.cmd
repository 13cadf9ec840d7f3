printf '# GHz\n! nothing was measured\n' >no_records.s1p
touchstone2 info no_records.s1p
touchstone2 info --json no_records.s1p
