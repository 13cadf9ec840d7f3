#!/usr/bin/env bash
# Counts the instructions of "touchstone2 --version", the dynamic linker's included.
# Scripts run the tool once per file, so that what it does before it does anything counts.
#
# At the limit a start takes less than 10 ms on a machine that executes one instruction
# per nanosecond; twice what it takes now would be noticed long before.
#
#   check_startup.sh TOOL
set -euo pipefail

limit=6000000
count=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null "$1" --version 2>&1 |
    sed -n 's/^.*Collected : //p')
echo "$count instructions, at most $limit are allowed"
[ "$count" -le "$limit" ]
