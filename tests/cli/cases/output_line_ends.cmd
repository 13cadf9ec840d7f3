# Lines end with a line feed on every system, whatever ends them in the input.
sed 's/$/\r/' examples/good/amplifier.s2p >crlf.s2p
for version in v1 v2; do
    touchstone2 convert crlf.s2p --to $version -o "$version"
    touchstone2 convert crlf.s2p --to $version -o - | cmp - "$version"
    tr -cd '\r' <"$version" | wc -c
done
touchstone2 ports crlf.s2p >names
sed 's/$/\r/' names >crlf-names
touchstone2 ports crlf.s2p --from crlf-names -o named.s2p
touchstone2 ports named.s2p | cmp - names
