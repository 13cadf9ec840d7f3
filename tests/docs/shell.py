"""Runs the commands of a page's console blocks, one after another, in a folder of their own."""

import os
import re
import shutil
import subprocess

TIME_LIMIT_S = 120
PROMPT = "$ "
CONTINUATION = "> "
ELLIPSIS = "..."


class Step:
    """One command of a console block with the output that the page shows."""

    def __init__(self, line, command):
        self.line = line
        self.command = command
        self.shown = []


def steps_of(block):
    """The steps of a console block; None if it does not begin with a prompt."""
    steps = []
    for number, line in enumerate(block.lines, start=block.line + 1):
        if line.startswith(PROMPT):
            steps.append(Step(number, line[len(PROMPT) :]))
        elif not steps:
            return None
        elif line.startswith(CONTINUATION) and not steps[-1].shown:
            steps[-1].command += "\n" + line[len(CONTINUATION) :]
        else:
            steps[-1].shown.append(line.rstrip())
    return steps


def matches(shown, printed):
    """A line "..." stands for any lines, "..." behind a text for the rest of its line."""
    pattern = ""
    for line in shown:
        if line.strip() == ELLIPSIS:
            pattern += r"(?:.*\n)*?"
        elif line.endswith(ELLIPSIS):
            pattern += re.escape(line[: -len(ELLIPSIS)]) + r".*\n"
        else:
            pattern += re.escape(line) + r"\n"
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


class Shell:
    """A shell in a new folder that holds a copy of the examples, and what it remembers."""

    def __init__(self, folder, examples, environment):
        folder.mkdir(parents=True)
        shutil.copytree(examples, folder / "examples")
        self.folder = folder
        self.cwd = folder
        self.state = folder.parent / (folder.name + ".cwd")
        self.environment = environment
        self.status = 0

    def run(self, command):
        """What the command prints, as a list of lines without blanks at their ends."""
        script = f'trap \'pwd >"{self.state}"\' EXIT\n(exit {self.status})\n{command}\n'
        done = subprocess.run(
            ["bash", "-c", script],
            cwd=self.cwd,
            env={**os.environ, **self.environment},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=TIME_LIMIT_S,
            check=False,
        )
        self.status = done.returncode
        self.cwd = self.state.read_text(encoding="utf-8").rstrip("\n")
        text = done.stdout.decode("utf-8", errors="replace")
        return [line.rstrip() for line in text.splitlines()]

    def save(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")
