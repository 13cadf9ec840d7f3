touchstone2 check --json examples/broken >json
touchstone2 check --format json examples/broken >format
cmp json format && wc -l <json
