# Folders and files named in Chinese, German and with a micro sign: found, read, written and named.
folder=$(printf '\346\250\241\345\236\213')
file="$folder/$(printf 'verst\303\244rker \302\265').s2p"
mkdir "$folder"
cp examples/good/amplifier.s2p "$file"
touchstone2 check "$file" "$folder"
touchstone2 check --json "$file"
touchstone2 convert "$file" --to v2 -o "$file.ts" && ls "$folder"
touchstone2 convert "$file" --to v2 -o "$file.ts"
echo "exit $?"
touchstone2 ports "$file.ts" >"$folder/names"
touchstone2 ports "$file.ts" --from "$folder/names" -o "$folder/named.ts" && touchstone2 check "$folder/named.ts"
cp examples/broken/frequency_order.s2p "$file"
touchstone2 check "$file"
