#!/usr/bin/env python3
"""Compares what a shared library exports with what is kept here.

    check_exports.py --format elf|pe --reader PROGRAM --filter PROGRAM [--update] LIBRARY LIST

The reader is nm for ELF files and objdump for Windows' PE files, the filter is
c++filt. LIST has one readable name per line, sorted. --update rewrites it from
the library; read the difference before it is kept.

Names of the standard library's types are shortened, because they are spelled
differently by different standard libraries.
"""

import argparse
import difflib
import pathlib
import re
import subprocess
import sys

# In this order.
SHORTER = [
    (re.compile(r"\bstd::__(?:1|cxx11)::"), "std::"),
    (re.compile(r"\[abi:cxx11\]"), ""),
    (
        re.compile(r"std::basic_string<char, std::char_traits<char>, std::allocator<char> ?>"),
        "std::string",
    ),
    (
        re.compile(r"std::basic_(string_view|ostream)<char, std::char_traits<char> ?>"),
        r"std::\1",
    ),
    (re.compile(r"std::vector<([^<>]+), std::allocator<\1 ?> ?>"), r"std::vector<\1>"),
    # 64 bits are "long" on one platform and "long long" on another.
    (re.compile(r"\bunsigned long long\b"), "unsigned long"),
]


def run(command, text=None):
    return subprocess.run(
        command, input=text, capture_output=True, encoding="utf-8", check=True
    ).stdout


def elf_symbols(reader, library):
    lines = run([reader, "-D", "--defined-only", "--no-demangle", str(library)]).splitlines()
    return [line.split()[-1] for line in lines if line.strip()]


def pe_symbols(reader, library):
    text = run([reader, "-p", str(library)])
    table = text.split("[Ordinal/Name Pointer] Table", 1)
    if len(table) != 2:
        return []
    entry = re.compile(r"\s*\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+[0-9a-f]+\s+)?(\S+)$")
    symbols = []
    for line in table[1].splitlines()[1:]:
        match = entry.match(line)
        if not match:
            break
        symbols.append(match.group(1))
    return symbols


def readable(symbols, name_filter):
    names = run([name_filter], "\n".join(symbols) + "\n").splitlines()
    for pattern, shorter in SHORTER:
        names = [pattern.sub(shorter, name) for name in names]
    # Constructors and destructors have several symbols of one name.
    return sorted(set(names))


def main():
    parser = argparse.ArgumentParser(description="Compares a shared library's exports.")
    parser.add_argument("--format", choices=("elf", "pe"), required=True)
    parser.add_argument("--reader", required=True)
    parser.add_argument("--filter", required=True)
    parser.add_argument("--update", action="store_true", help="rewrite the list")
    parser.add_argument("library", type=pathlib.Path)
    parser.add_argument("list", type=pathlib.Path)
    arguments = parser.parse_args()

    symbols = {"elf": elf_symbols, "pe": pe_symbols}[arguments.format]
    names = readable(symbols(arguments.reader, arguments.library), arguments.filter)
    if arguments.update:
        text = "".join(f"{name}\n" for name in names)
        arguments.list.write_text(text, encoding="ascii", newline="\n")
        print(f"{arguments.list}: {len(names)} names")
        return 0
    expected = arguments.list.read_text(encoding="ascii").splitlines()
    differences = list(
        difflib.unified_diff(expected, names, str(arguments.list), "exported", lineterm="", n=0)
    )
    print("\n".join(differences) if differences else f"{len(names)} names, as expected")
    return 1 if differences or not names else 0


if __name__ == "__main__":
    sys.exit(main())
