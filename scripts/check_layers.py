#!/usr/bin/env python3
"""Checks who includes whom, and that sources are ASCII.

Run as the CTest "layers". Prints one line per offence, file:line: reason, and
fails if there is any. The tables below are the rule; what they mean:

- A folder of the library (the same name below include/touchstone2 and src) may
  include itself, the standard library and the folders listed for it.
- A public header includes public headers only.
- Tools and examples are callers: public headers, and files of their own folder.
  Of the tool's folders, too, each may include those that are listed for it.
- Tests, benchmarks and fuzz targets may include anything of the library, tests
  also anything of the tool.
- Headers of an operating system stand in the files that map a file to memory,
  <iostream> in the one that prints.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# Folder -> what it may include besides itself: a folder, or single headers of one.
MAY_INCLUDE = {
    "model": set(),
    "reader": {"model"},
    "portnames": {"model"},
    "writer": {"model"},
    "copier": {
        "model",
        "reader/error_type.h",
        "reader/token.h",
        "reader/diagnostics.h",
    },
    "binding": {"model", "reader"},
}
# Directly below include/touchstone2, free for every folder.
FOR_ALL = {"export.h", "version.h"}
UMBRELLA = "touchstone2.h"

CALLERS = {"tools", "examples"}

# The same for the folders of the tool; main.cpp may include them all.
TOOL = "tools/touchstone2/"
TOOL_MAY_INCLUDE = {
    "text": set(),
    "terminal": {"text"},
    "diagnostics": {"inputs", "terminal", "text"},
    "comparison": {"text"},
    "json": {"comparison", "diagnostics", "text"},
    "inputs": {"terminal", "text"},
    "command_line": {"json", "terminal"},
    "outputs": {"command_line", "diagnostics", "inputs", "terminal", "text"},
    "commands": {
        "command_line",
        "comparison",
        "diagnostics",
        "inputs",
        "json",
        "outputs",
        "terminal",
        "text",
    },
}
UNRESTRICTED = {"tests", "bench", "fuzz"}

SYSTEM_HEADERS = re.compile(r"src/reader/mapped_file_\w+\.cpp")
PRINTS = "src/reader/message_handler.cpp"
# The only folder that may use the host application's headers.
HOST = "binding"

CODE = {".h", ".cpp"}
ASCII_ONLY = CODE | {".cmake", ".in", ".py", ".sh", ".json"}
ASCII_ONLY_NAMES = {"CMakeLists.txt", ".clang-format", ".clang-tidy", ".editorconfig"}
DATA = "tests/golden/"  # samples may hold any byte

INCLUDE = re.compile(r'\s*#\s*include\s*(?:<([^>]+)>|"([^"]+)")')


class Checker:
    """Collects the offences of one source tree."""

    def __init__(self, root):
        self.root = root
        self.offences = []

    def report(self, file, line, reason):
        self.offences.append(f"{self.name(file)}:{line}: {reason}")

    def name(self, file):
        return file.relative_to(self.root).as_posix()

    def files(self):
        """All files but those of builds and hidden folders (.ci is looked at)."""
        for top in sorted(self.root.iterdir()):
            if top.is_file():
                yield top
            elif top.name == ".ci" or not top.name.startswith((".", "build")):
                yield from (f for f in sorted(top.rglob("*")) if f.is_file())

    def run(self):
        for file in self.files():
            name = self.name(file)
            is_source = file.suffix in ASCII_ONLY or file.name in ASCII_ONLY_NAMES
            if is_source and not name.startswith(DATA):
                self.check_ascii(file)
            if file.suffix in CODE:
                self.check_includes(file)
        return self.offences

    def check_ascii(self, file):
        for number, line in enumerate(file.read_bytes().split(b"\n"), start=1):
            if not line.isascii():
                self.report(file, number, "has a byte that is not ASCII")

    def check_includes(self, file):
        text = file.read_text(encoding="utf-8", errors="replace")
        for number, line in enumerate(text.splitlines(), start=1):
            match = INCLUDE.match(line)
            if not match:
                continue
            reason = self.judge(file, match.group(1), match.group(2))
            if reason:
                self.report(file, number, f"{match.group(0).strip()}: {reason}")

    def resolve(self, file, angled, quoted):
        """The file of this tree that is meant, or None."""
        folders = [self.root / "include", self.root / "src"]
        top = self.name(file).split("/")[0]
        if top in UNRESTRICTED:
            folders.append(self.root / top)
        if self.name(file).startswith(TOOL) or top == "tests":
            folders.append(self.root / TOOL)
        if quoted:
            folders.insert(0, file.parent)
        for folder in folders:
            candidate = (folder / (angled or quoted)).resolve()
            if candidate.is_file() and self.root in candidate.parents:
                return candidate
        return None

    def judge(self, file, angled, quoted):
        """Why this include is wrong; None when it is not."""
        parts = self.name(file).split("/")
        top = parts[0]
        target = self.resolve(file, angled, quoted)
        if target is None:
            if quoted or angled.startswith("touchstone2/"):
                return "there is no such file in this tree"
            return self.judge_foreign(file, angled)
        if top in UNRESTRICTED:
            return None
        if top in CALLERS:
            own = self.root / top
            public = self.root / "include"
            if public in target.parents:
                return None
            if own not in target.parents:
                return f"{top} includes public headers only"
            return self.judge_inside_tool(file, target)
        return self.judge_inside(file, target)

    def judge_inside(self, file, target):
        """Both are files of this tree; the including one belongs to the library."""
        where, from_path = self.split(file)
        target_where, to_path = self.split(target)
        if where is None or target_where is None:
            return "the library includes files of include and src only"
        if where == "include" and target_where == "src":
            return "a public header includes a private one"
        if from_path == UMBRELLA or to_path in FOR_ALL:
            return None
        if to_path == UMBRELLA:
            return "the umbrella header is for callers"
        folder, target_folder = from_path.split("/")[0], to_path.split("/")[0]
        if folder == target_folder:
            return None
        if folder not in MAY_INCLUDE:
            return f"no rule for the folder {folder}; add it to check_layers.py"
        if target_folder in MAY_INCLUDE[folder] or to_path in MAY_INCLUDE[folder]:
            return None
        return f"{folder} may not include {target_folder}"

    def judge_inside_tool(self, file, target):
        """Both are files of tools or examples."""
        if not self.name(file).startswith(TOOL):
            return None
        folder = self.name(file).removeprefix(TOOL).split("/")[0]
        target_folder = self.name(target).removeprefix(TOOL).split("/")[0]
        if folder in (target_folder, "main.cpp"):
            return None
        if folder not in TOOL_MAY_INCLUDE:
            return f"no rule for the tool's folder {folder}; add it to check_layers.py"
        if target_folder in TOOL_MAY_INCLUDE[folder]:
            return None
        return f"{folder} may not include {target_folder}"

    def split(self, file):
        """("include" or "src", path below include/touchstone2 or src)."""
        name = self.name(file)
        for where, prefix in (("include", "include/touchstone2/"), ("src", "src/")):
            if name.startswith(prefix):
                return where, name[len(prefix) :]
        return None, name

    def judge_foreign(self, file, header):
        """A header from outside the tree; only the library itself is restricted."""
        where, path = self.split(file)
        if where is None:
            return None
        name = self.name(file)
        if header == "iostream":
            return None if name == PRINTS else "only message_handler.cpp and tools print"
        is_standard = "/" not in header and not header.endswith(".h")
        if is_standard or SYSTEM_HEADERS.fullmatch(name) or path.startswith(HOST + "/"):
            return None
        return (
            "neither this library's nor the C++ standard library's (<cmath>, not <math.h>; "
            "a system's headers belong in reader/mapped_file_*.cpp)"
        )


def main():
    offences = Checker(ROOT).run()
    for offence in offences:
        print(offence)
    print(f"layers: {len(offences)} offences" if offences else "layers: in order")
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main())
