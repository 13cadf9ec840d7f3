: >empty.s1p
touchstone2 check empty.s1p
