#!/usr/bin/env python3
"""Types the beginnings of command lines into a real shell, presses Tab and Enter, and compares
the arguments that the tool would have got.

    complete_in_shell.py bash|zsh|fish COMPLETION-FILE
"""

import os
import pathlib
import pty
import re
import select
import signal
import sys
import tempfile
import time

TIME_LIMIT_S = 30
FILE = "amplifier.s2p"  # in the folder where the shell runs

# What is typed behind "touchstone2 " and the arguments after the Tab.
CASES = [
    ("che", ["check"]),
    ("--vers", ["--version"]),
    ("check --wer", ["check", "--werror"]),
    ("check amp", ["check", FILE]),
    ("check --quiet amp", ["check", "--quiet", FILE]),
    ("convert --precision a", ["convert", "--precision", "auto"]),
    ("convert --precision=a", ["convert", "--precision=auto"]),
    ("convert --to v2 --forc", ["convert", "--to", "v2", "--force"]),
    ("convert --output amp", ["convert", "--output", FILE]),
    ("convert -o amp", ["convert", "-o", FILE]),
]

# The quotes keep the markers apart from their echo.
SHOW = "printf 'ARGUMENTS'; printf '<%s>' $ARGUMENTS; printf 'END\\n'"
SHELLS = {
    "bash": (
        ["bash", "--norc", "--noprofile", "-i"],
        "source '{file}'; touchstone2() {{ " + SHOW.replace("$ARGUMENTS", '"$@"') + "; }}",
    ),
    "zsh": (
        ["zsh", "-f", "-i"],
        "fpath=('{folder}' $fpath); autoload -U compinit; compinit -u -D; "
        "touchstone2() {{ " + SHOW.replace("$ARGUMENTS", '"$@"') + "; }}",
    ),
    "fish": (
        ["fish", "--no-config", "-i"],
        "function touchstone2; " + SHOW.replace("$ARGUMENTS", "$argv") + "; end; source '{file}'",
    ),
}


class Shell:
    """A shell that runs in `folder` and believes that somebody sits in front of it."""

    def __init__(self, command, folder):
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            environment = dict(os.environ, TERM="dumb", HOME=folder, LC_ALL="C.UTF-8")
            os.execvpe(command[0], command, environment)

    def type(self, text):
        os.write(self.terminal, text.encode("ascii"))

    def read_until(self, pattern):
        """The match; what came before it is forgotten."""
        seen = ""
        end = time.monotonic() + TIME_LIMIT_S
        while time.monotonic() < end:
            if select.select([self.terminal], [], [], 0.2)[0]:
                seen += os.read(self.terminal, 4096).decode("utf-8", "replace")
            match = re.search(pattern, seen)
            if match:
                return match
        raise TimeoutError(f"no {pattern!r} in {seen!r}")

    def close(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)


def complete(shell, typed):
    shell.type(f"touchstone2 {typed}\t\n")
    shown = shell.read_until(r"ARGUMENTS((?:<[^>]*>)*)END").group(1)
    return re.findall(r"<([^>]*)>", shown)


def failures(name, completion_file):
    command, setup = SHELLS[name]
    with tempfile.TemporaryDirectory(prefix="touchstone2-completion-") as folder:
        pathlib.Path(folder, FILE).touch()
        shell = Shell(command, folder)
        try:
            shell.type(setup.format(file=completion_file, folder=completion_file.parent) + "\n")
            shell.type("echo REA''DY\n")
            shell.read_until("READY")
            for typed, wanted in CASES:
                found = complete(shell, typed)
                if found != wanted:
                    yield f"{name}: {typed!r} became {found}, not {wanted}"
        finally:
            shell.close()


def main():
    name, completion_file = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    found = list(failures(name, completion_file))
    print("\n".join(found) or f"{name}: {len(CASES)} lines completed")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
