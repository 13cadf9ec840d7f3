#!/usr/bin/env python3
"""Tries what docs/automation.md gives to editors on what the tool really prints.

    check_editors.py --tool PATH

The problem matchers are tried as regular expressions, the errorformat in vim.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import tempfile

from markdown import Page

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "automation.md"

# Texts, and what an editor's list must hold: line, column, severity, code, start of the message.
SAMPLES = {
    "place.s2p": (
        "# GHz S RI R 50\n2 0 0 1 0 1 0 0 0\n1 0 0 1 0 1 0 0 0\n",
        (3, 1, "error", "E2311", "frequency points must be listed"),
    ),
    "no_place.ts": (
        "[Version] 2.0\n# GHz G RI R 50\n[Number of Ports] 1\n[Number of Frequencies] 1\n"
        "[Network Data]\n1 0 0\n[End]\n",
        (0, 0, "error", "E2026", ""),
    ),
    "warning.s1p": (
        "# GHz S RI R 50\n1 0 0",
        (2, 6, "warning", "W2005", ""),
    ),
}

VIM_SCRIPT = r"""
for name in {names}
  execute 'edit' name
  compiler touchstone2
  silent make!
  let item = getqflist()[0]
  call writefile([json_encode([name, len(getqflist()), bufname(item.bufnr), item.lnum, item.col,
        \ item.type, item.nr, item.text])], 'list.jsonl', 'a')
endfor
quitall!
"""


class Editors:
    """The page's blocks, and a folder with the samples and the lines that the tool prints."""

    def __init__(self, tool, folder):
        blocks = Page(PAGE).blocks
        self.blocks = {b.directive[1]: b.text for b in blocks if b.directive[0] == "file"}
        self.tool = tool
        self.folder = folder
        self.faults = []
        for name, (text, _) in SAMPLES.items():
            (folder / name).write_text(text, encoding="ascii")

    def expect(self, what, found, expected):
        if found != expected:
            self.faults.append(f"{what}: found {found} instead of {expected}")

    def line_of(self, name):
        done = subprocess.run(
            [self.tool, "check", "--quiet", name],
            cwd=self.folder,
            capture_output=True,
            text=True,
            check=False,
        )
        lines = done.stderr.splitlines()
        self.expect(f"{name}, number of lines", len(lines), 1)
        return lines[0]

    def try_matchers(self, title, matchers, samples):
        """Every sample is taken by one matcher alone, with all its parts."""
        for name in samples:
            line, column, severity, code, message = SAMPLES[name][1]
            printed = self.line_of(name)
            found = []
            for matcher in matchers:
                pattern = matcher["pattern"]
                pattern = pattern[0] if isinstance(pattern, list) else pattern
                match = re.match(pattern["regexp"], printed)
                if match:
                    found.append(
                        {k: match.group(v) for k, v in pattern.items() if isinstance(v, int)}
                    )
            expected = {"file": name, "severity": severity, "code": code}
            if line:
                expected.update(line=str(line), column=str(column))
            expected["message"] = printed.partition(f"{code}: ")[2]
            self.expect(f"{title}, {name}", found, [expected])
            self.expect(f"{name}, message", expected["message"].startswith(message), True)

    def try_vim(self):
        compiler = self.folder / ".vim" / "compiler"
        compiler.mkdir(parents=True)
        (compiler / "touchstone2.vim").write_text(self.blocks["touchstone2.vim"])
        script = self.folder / "script.vim"
        script.write_text(VIM_SCRIPT.replace("{names}", json.dumps(list(SAMPLES))))
        path = f"{self.tool.parent}:/usr/local/bin:/usr/bin:/bin"
        options = ["--cmd", f"set runtimepath^={self.folder}/.vim", "-S", str(script)]
        subprocess.run(
            ["vim", "-Nes", "-u", "NONE", "-i", "NONE", *options],
            cwd=self.folder,
            env={"HOME": str(self.folder), "PATH": path, "TERM": "dumb", "SHELL": "/bin/sh"},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            timeout=60,
            check=False,
        )
        result = self.folder / "list.jsonl"
        found = [json.loads(line) for line in result.read_text().splitlines()]
        expected = []
        for name, (_, (line, column, severity, code, _)) in SAMPLES.items():
            message = self.line_of(name).partition(f"{code}: ")[2]
            kind = severity[0]
            expected.append([name, 1, name, line, column, kind, int(code[1:]), message])
        self.expect("vim", found, expected)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--tool", required=True, type=pathlib.Path)
    tool = parser.parse_args().tool.resolve()
    with tempfile.TemporaryDirectory() as folder:
        editors = Editors(tool, pathlib.Path(folder))
        task = json.loads(editors.blocks["tasks.json"])["tasks"][0]
        editors.try_matchers("tasks.json", task["problemMatcher"], SAMPLES)
        matchers = json.loads(editors.blocks["touchstone2-matcher.json"])["problemMatcher"]
        editors.try_matchers("the matcher file", matchers, ["place.s2p", "warning.s1p"])
        editors.try_vim()
    for fault in editors.faults:
        print(fault)
    print(f"editors: {len(editors.faults)} faults" if editors.faults else "editors: in order")
    return 1 if editors.faults else 0


if __name__ == "__main__":
    sys.exit(main())
