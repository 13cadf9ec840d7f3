# Every example in both versions; what version 1 cannot hold is refused.
for file in examples/good/*; do
    for version in v1 v2; do
        touchstone2 convert "$file" --to $version -o "$version" --force 2>/dev/null
        echo "$file $version $?"
        touchstone2 check --quiet --werror "$version"
    done
done
