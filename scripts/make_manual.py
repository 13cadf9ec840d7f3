#!/usr/bin/env python3
"""Makes the man pages and the shell completions from what the tool says of its commands.

    make_manual.py --tool PATH [--check]

They are written to tools/touchstone2/manual and tools/touchstone2/completions and are
committed, so that no build has to run the tool. With --check nothing is written; every file
that the tool would now make otherwise is named, and it fails if there is any.

The date of a page is the day on which something else of it has changed.
"""

import argparse
import datetime
import pathlib
import re
import sys

from manual.bash_completion import bash_completion
from manual.description import describe
from manual.fish_completion import fish_completion
from manual.man_page import command_page, page_name, tool_page
from manual.zsh_completion import zsh_completion

TOOL_FOLDER = pathlib.Path(__file__).resolve().parent.parent / "tools" / "touchstone2"
PAGES = TOOL_FOLDER / "manual"
COMPLETIONS = TOOL_FOLDER / "completions"


def read(file):
    return file.read_text(encoding="ascii") if file.exists() else ""


def page_text(file, make):
    """The page with the date it has already, if that is all that would change."""
    kept = read(file)
    dated = re.search(r"^\.TH \S+ 1 (\S+)", kept, re.MULTILINE)
    if dated and make(dated.group(1)) == kept:
        return kept
    return make(datetime.datetime.now(datetime.timezone.utc).date().isoformat())


def wanted_files(tool):
    """File -> text."""
    files = {
        COMPLETIONS / "touchstone2": bash_completion(tool),
        COMPLETIONS / "_touchstone2": zsh_completion(tool),
        COMPLETIONS / "touchstone2.fish": fish_completion(tool),
    }
    page = PAGES / "touchstone2.1"
    files[page] = page_text(page, lambda date: tool_page(tool, date))
    for command in tool.commands:
        page = PAGES / f"{page_name(command)}.1"
        files[page] = page_text(page, lambda date, c=command: command_page(tool, c, date))
    return files


def main():
    parser = argparse.ArgumentParser(description="Makes man pages and shell completions.")
    parser.add_argument("--tool", required=True, help="the executable to ask")
    parser.add_argument("--check", action="store_true", help="write nothing, name what differs")
    arguments = parser.parse_args()

    wanted = wanted_files(describe(arguments.tool))
    present = {file for folder in (PAGES, COMPLETIONS) for file in folder.glob("*")}
    left_over = present - set(wanted)
    outdated = {file for file, text in wanted.items() if read(file) != text}
    if arguments.check:
        for file in sorted(left_over | outdated):
            print(f"{file}: not what the tool says; run scripts/make_manual.py")
        return 1 if left_over or outdated else 0

    for file in left_over:
        file.unlink()
    for file in outdated:
        file.parent.mkdir(exist_ok=True)
        file.write_text(wanted[file], encoding="ascii", newline="\n")
    print(f"manual: {len(wanted)} files, {len(outdated)} of them changed")
    return 0


if __name__ == "__main__":
    sys.exit(main())
