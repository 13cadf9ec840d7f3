mkdir 'Mess Daten'
cp examples/good/antenna.s1p 'Mess Daten/ANTENNE 1.S1P'
cp examples/good/buffer.ts 'Mess Daten/PUFFER.TS'
touchstone2 check 'Mess Daten'
