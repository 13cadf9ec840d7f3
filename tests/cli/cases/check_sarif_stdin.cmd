touchstone2 check --format sarif - < examples/broken/frequency_order.s2p
