cp examples/broken/missing_pair.s2p 'with two  blanks .s2p'
cp examples/broken/missing_pair.s2p '[brackets]'
cp examples/broken/missing_pair.s2p ./--quiet
touchstone2 check -- 'with two  blanks .s2p' '[brackets]' --quiet
