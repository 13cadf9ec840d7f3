touchstone2 check --plain examples/broken/frequency_order.s2p
touchstone2 info --plain examples/broken/frequency_order.s2p
