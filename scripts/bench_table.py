#!/usr/bin/env python3
"""Runs the benchmark program once per measurement and prints the medians as a table."""

import pathlib
import platform
import statistics
import subprocess
import sys

READ_WAYS = ("library", "L1", "L2")
WRITE_WAYS = ("library", "W1", "W2")
READ_INPUTS = "abcdefg"
WRITE_INPUTS = "abcde"


def seconds(program, direction, name, way):
    command = [program, "--once", direction, name, way]
    folder = pathlib.Path(program).parent
    return float(subprocess.run(command, cwd=folder, check=True, capture_output=True).stdout)


def medians(program, direction, name, ways, rounds):
    """Of interleaved runs; the first round only warms the page cache up."""
    times = {way: [] for way in ways}
    for number in range(rounds + 1):
        for way in ways:
            taken = seconds(program, direction, name, way)
            if number > 0:
                times[way].append(taken)
    return {way: statistics.median(values) for way, values in times.items()}


def input_size(program, name):
    files = (pathlib.Path(program).parent / "bench-inputs").glob(f"{name}[0-9]*.ts")
    return sum(file.stat().st_size for file in files)


def print_table(program, direction, names, ways, rounds):
    own, first, second = ways
    print(f"\n| {direction} | MB | library | {first} | {second} | of {first} | of {second} |")
    print("|---|---|---|---|---|---|---|")
    for name in names:
        median = medians(program, direction, name, ways, rounds)
        columns = [f"{median[way] * 1e3:.2f} ms" for way in ways]
        ratios = [f"{median[way] / median[own]:.2f}" for way in (first, second)]
        size = input_size(program, name) / 1e6
        print(f"| ({name}) | {size:.1f} | " + " | ".join(columns + ratios) + " |", flush=True)


def main():
    # An absolute path: the program runs in its own folder, where the inputs are made.
    program = str(pathlib.Path(sys.argv[1]).resolve())
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 7
    wanted = "".join(sys.argv[3:]) or READ_INPUTS
    print(f"{platform.machine()}, {platform.system()}, {rounds} rounds, medians")
    reads = [name for name in READ_INPUTS if name in wanted]
    writes = [name for name in WRITE_INPUTS if name in wanted]
    print_table(program, "read", reads, READ_WAYS, rounds)
    print_table(program, "write", writes, WRITE_WAYS, rounds)


if __name__ == "__main__":
    main()
