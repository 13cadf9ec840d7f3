# Beyond the 260 characters at which the ordinary form of a path ends on Windows.
level=some-folder-with-a-long-name-0123456789
folder=tree/$level/$level/$level/$level/$level/$level/$level/$level
mkdir -p "$folder"
cp examples/good/amplifier.s2p "$folder/a.s2p"
show() { sed "s,$level[/\\],,g"; }
touchstone2 check "$folder/a.s2p" | show
touchstone2 convert "$folder/a.s2p" -o "$folder/b.s2p"
touchstone2 convert "$folder/a.s2p" -o "$folder/b.s2p" 2>refused
echo "exit $?"
show <refused
touchstone2 convert "$folder/a.s2p" -o "$folder/b.s2p" --force
touchstone2 ports "$folder/a.s2p" >"$folder/names"
touchstone2 ports "$folder/a.s2p" --from "$folder/names" -o "$folder/c.s2p"
touchstone2 check tree | show
touchstone2 check "$folder" | show
ls -A "$folder"
