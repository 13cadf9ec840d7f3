# The good examples give no warnings.
touchstone2 check --werror --quiet examples/good
