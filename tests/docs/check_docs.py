#!/usr/bin/env python3
"""Checks that the documentation is true.

    check_docs.py --build FOLDER [--update] [PAGE...]

FOLDER is a build of this tree with the library and the tool; it is installed into a
temporary prefix. Without PAGE all pages are checked. What holds for a page:

- A link leads to a file of this tree, its anchor to a heading there. No link leads
  out of the tree.
- A path of this tree in `code` exists.
- A block of `console` is run: lines that start with "$ " are commands ("> " goes on
  with one), the others are what they print. A line "..." stands for any lines, "..."
  behind a text for the rest of the line. The commands of a page share a folder with a
  copy of the examples, and where "cd" has led; one that fails must print something.
- A block of `cpp` with a main function compiles as a program, any other one inside a
  function. A block of `json` is JSON.
- In a block of `sh`, which is not run, scripts, presets and the tool's options exist.

An HTML comment in front of a block says more: "file: NAME" saves the block in that
folder, for the commands behind it; "skip: REASON" leaves it out.

--update writes what the commands print into the pages; read the difference.
"""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from markdown import Page
from shell import Shell, matches, steps_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
TOP_FOLDERS = "bench|cmake|docs|examples|fuzz|include|scripts|src|tests|tools"
TREE_PATH = re.compile(rf"(?:{TOP_FOLDERS})/[\w./-]*\w")
PLACEHOLDER = re.compile(r"\b(?:NAME|CODE)\b")
COMPILE = ["g++", "-std=c++17", "-fsyntax-only", "-x", "c++", "-"]

# Names that a fragment may use without declaring them; its own come first.
BEFORE_FRAGMENT = """
#include <touchstone2/touchstone2.h>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>
extern touchstone2::File file;
extern touchstone2::MessageHandler& handler;
extern std::string text;
"""


def pages():
    found = [ROOT / name for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md")]
    found.append(ROOT / "examples" / "README.md")
    return found + sorted((ROOT / "docs").rglob("*.md"))


class Installation:
    """A temporary prefix with the library and the tool, as a user would have it."""

    def __init__(self, build, prefix):
        subprocess.run(
            ["cmake", "--install", build, "--prefix", prefix],
            stdout=subprocess.DEVNULL,
            check=True,
        )
        self.include = prefix / "include"
        libraries = next(prefix.rglob("libtouchstone2.*")).parent
        tools = str(prefix / "bin")
        self.environment = {
            "PATH": tools + os.pathsep + os.environ["PATH"],
            "LD_LIBRARY_PATH": str(libraries),
            "PKG_CONFIG_PATH": str(libraries / "pkgconfig"),
            "CMAKE_PREFIX_PATH": str(prefix),
            "CMAKE_GENERATOR": "Ninja",
            "HOME": str(prefix),
            "LC_ALL": "C",
            "GIT_CONFIG_NOSYSTEM": "1",
            "GIT_AUTHOR_NAME": "An Engineer",
            "GIT_AUTHOR_EMAIL": "engineer@example.org",
            "GIT_COMMITTER_NAME": "An Engineer",
            "GIT_COMMITTER_EMAIL": "engineer@example.org",
        }

    def help_of(self, command):
        done = subprocess.run(
            ["touchstone2", command, "--help"],
            env={**os.environ, **self.environment},
            capture_output=True,
            text=True,
            check=False,
        )
        return done.stdout if f"Usage: touchstone2 {command} " in done.stdout else None


class Checker:
    """Collects what is wrong with the pages."""

    def __init__(self, installation, folder, update):
        self.installation = installation
        self.folder = folder
        self.update = update
        self.faults = []
        self.counts = dict.fromkeys(("links", "commands", "programs", "fragments"), 0)

    def fault(self, page, line, text):
        self.faults.append(f"{page.path.relative_to(ROOT)}:{line}: {text}")

    def check(self, path):
        page = Page(path)
        self.check_links(page)
        self.check_paths(page)
        name = str(path.relative_to(ROOT)).replace(os.sep, "-")
        environment = self.installation.environment
        shell = Shell(self.folder / name, ROOT / "examples", environment)
        for block in page.blocks:
            self.check_block(page, block, shell)

    def check_links(self, page):
        for line, target in page.links():
            self.counts["links"] += 1
            name, _, anchor = target.partition("#")
            if ":" in name:
                self.fault(page, line, f"{target} leads out of the tree")
                continue
            file = (page.path.parent / name).resolve() if name else page.path
            if not file.exists():
                self.fault(page, line, f"there is no {name}")
            elif anchor and anchor not in Page(file).anchors():
                self.fault(page, line, f"{name} has no heading #{anchor}")

    def check_paths(self, page):
        for line, text in page.inline_code():
            if not TREE_PATH.fullmatch(text) or PLACEHOLDER.search(text):
                continue
            if not (ROOT / text).exists():
                self.fault(page, line, f"there is no {text}")

    def check_block(self, page, block, shell):
        kind, value = block.directive
        if kind == "skip":
            return
        if kind == "file":
            shell.save(value, block.text)
        steps = steps_of(block) if block.language == "console" else None
        if steps is not None:
            self.run_steps(page, block, steps, shell)
        elif block.language == "console":
            self.fault(page, block.line, "a console block begins with a prompt")
        elif block.language == "cpp":
            self.compile(page, block)
        elif block.language == "json":
            self.check_json(page, block)
        elif block.language == "sh":
            self.check_words(page, block)

    def run_steps(self, page, block, steps, shell):
        for step in steps:
            self.counts["commands"] += 1
            printed = shell.run(step.command)
            if shell.status != 0 and not printed:
                self.fault(page, step.line, f"fails silently ({shell.status}): {step.command}")
            if matches(step.shown, printed):
                continue
            if self.update:
                step.shown = printed
            else:
                text = "".join(f"\n    {line}" for line in printed)
                self.fault(page, step.line, f"{step.command} prints{text}")
        if self.update:
            self.rewrite(page, block, steps)

    def rewrite(self, page, block, steps):
        """Puts the steps in the place of the block; the others keep their line numbers."""
        new = []
        for step in steps:
            first, *others = step.command.split("\n")
            new += ["$ " + first, *("> " + line for line in others), *step.shown]
        old = "".join(f"{line}\n" for line in ["```console", *block.lines, "```"])
        text = page.path.read_text(encoding="utf-8")
        replacement = "".join(f"{line}\n" for line in ["```console", *new, "```"])
        page.path.write_text(text.replace(old, replacement, 1), encoding="utf-8")

    def compile(self, page, block):
        is_program = "int main(" in block.text
        self.counts["programs" if is_program else "fragments"] += 1
        done = subprocess.run(
            [*COMPILE, f"-I{self.installation.include}"],
            input=block.text if is_program else self.wrapped(block.lines),
            capture_output=True,
            text=True,
            check=False,
        )
        if done.returncode != 0:
            self.fault(page, block.line, f"does not compile\n{done.stderr}")

    @staticmethod
    def wrapped(lines):
        includes = [line for line in lines if line.startswith("#include")]
        rest = [line for line in lines if not line.startswith("#include")]
        body = ["int fragment() {", *rest, "return 0;", "}", ""]
        return BEFORE_FRAGMENT + "\n".join(includes + body)

    def check_json(self, page, block):
        try:
            json.loads(block.text)
        except ValueError as error:
            self.fault(page, block.line, f"is not JSON: {error}")

    def check_words(self, page, block):
        presets = (ROOT / "CMakePresets.json").read_text(encoding="utf-8")
        for number, line in enumerate(block.lines, start=block.line + 1):
            words = line.split("#")[0].split()
            for word in words:
                if TREE_PATH.fullmatch(word) and word.endswith((".sh", ".py")):
                    if not (ROOT / word).exists():
                        self.fault(page, number, f"there is no {word}")
            for preset in re.findall(r"--preset (\S+)", line):
                if f'"{preset}"' not in presets:
                    self.fault(page, number, f"there is no preset {preset}")
            if "touchstone2" in words:
                self.check_options(page, number, words[words.index("touchstone2") + 1 :])

    def check_options(self, page, number, words):
        if not words or words[0].startswith("-"):
            return
        text = self.installation.help_of(words[0])
        if text is None:
            self.fault(page, number, f"touchstone2 has no command {words[0]}")
            return
        for option in words[1:]:
            if re.fullmatch(r"--?[a-z-]+", option) and not re.search(
                rf"(?<![\w-]){option}(?![\w-])", text
            ):
                self.fault(page, number, f"touchstone2 {words[0]} has no option {option}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--build", required=True)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("pages", nargs="*", metavar="PAGE")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        installation = Installation(arguments.build, folder / "prefix")
        checker = Checker(installation, folder / "shells", arguments.update)
        for page in [pathlib.Path(p).resolve() for p in arguments.pages] or pages():
            checker.check(page)
    for fault in checker.faults:
        print(fault)
    print("docs:", ", ".join(f"{count} {what}" for what, count in checker.counts.items()), end="; ")
    print(f"{len(checker.faults)} faults" if checker.faults else "in order")
    return 1 if checker.faults else 0


if __name__ == "__main__":
    sys.exit(main())
