# The data of these are wrong, their headers are not.
touchstone2 check --header-only examples/broken/frequency_count.ts examples/broken/frequency_order.s2p
touchstone2 check --header-only examples/broken/glued_options.s1p
