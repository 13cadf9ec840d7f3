#!/usr/bin/env python3
"""Runs the command-line tool and compares what it writes with what is kept here.

    run_cases.py --tool PATH --examples FOLDER --faults PATH [--update] [CASE...]
    run_cases.py --tool PATH --examples FOLDER --emulator COMMAND [CASE...]

A case is cases/NAME.cmd, a script for sh, and beside it what it must give:

    NAME.stdout  standard output      (no file: nothing is written)
    NAME.stderr  standard error       (no file: nothing is written)
    NAME.exit    exit code            (no file: 0)
    NAME.stdout.lines  instead of NAME.stdout: lines that must appear in this
                 order, with anything between them; for help pages, whose
                 layout belongs to the library that makes them

Everything else is compared byte for byte. Bytes that are not printable ASCII
stand in these files as \\xNN, so that they are plain text.

The script runs in an empty temporary folder that holds only a copy of the
example files, as "examples", and finds the tool as "touchstone2". Permissions
count: root runs it without the right to read what no one may read. $FAULTS is
the library that makes files fail; its source says how to use it.

--emulator gives the command that runs a tool built for Windows. Backslashes and
slashes then count as the same, and NAME.windows.stderr goes before NAME.stderr
where the system's own words differ. A case whose first line is
"# only on POSIX systems: REASON" is not for such a tool.

--update rewrites the files from what the tool does now; read the difference
before it is kept. Fails if any case does, or if there is none.
"""

import argparse
import difflib
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

CASES = pathlib.Path(__file__).resolve().parent / "cases"
TIME_LIMIT_S = 60

# Root without these is held to the permissions of files like anyone else.
AS_ANYONE = ["setpriv", "--bounding-set=-dac_override,-dac_read_search"]


def as_text(data):
    """Plain text in which every byte is recognisable."""
    printable = set(range(0x20, 0x7F)) | {0x0A}
    return "".join(chr(b) if b in printable else f"\\x{b:02x}" for b in data)


def with_slashes(text):
    """The text of a Windows tool, whose paths may have backslashes."""
    return text.replace("\\\\", "/").replace("\\", "/")


def place_tool(place, tool, emulator):
    """Makes the tool callable by its plain name."""
    if not emulator:
        place.symlink_to(tool)
        return
    words = " ".join(shlex.quote(word) for word in [*emulator, str(tool)])
    place.write_text(f'#!/bin/sh\nexec {words} "$@"\n', encoding="utf-8")
    place.chmod(0o755)


class Case:
    """One script with the files that say what it must give."""

    def __init__(self, script):
        self.script = script
        self.name = script.stem

    def file(self, ending):
        return self.script.with_name(f"{self.name}.{ending}")

    def is_for_windows(self):
        script = self.script.read_text(encoding="ascii")
        return not script.startswith("# only on POSIX systems: ")

    def expected(self, ending, otherwise, emulator):
        file = self.file(ending)
        if emulator and self.file(f"windows.{ending}").exists():
            file = self.file(f"windows.{ending}")
        return file.read_text(encoding="ascii") if file.exists() else otherwise

    def run(self, tool, examples, faults, emulator):
        with tempfile.TemporaryDirectory(prefix="touchstone2-cli-") as folder:
            work, bin_folder = pathlib.Path(folder, "work"), pathlib.Path(folder, "bin")
            work.mkdir()
            bin_folder.mkdir()
            place_tool(bin_folder / "touchstone2", tool, emulator)
            for part in ("good", "broken"):
                shutil.copytree(examples / part, work / "examples" / part)
            environment = dict(os.environ, LC_ALL="C", LANGUAGE="C")
            environment["FAULTS"] = str(faults or "")
            # An instrumented tool insists on being loaded in front of everything else.
            asan_options = environment.get("ASAN_OPTIONS", "")
            environment["ASAN_OPTIONS"] = f"{asan_options}:verify_asan_link_order=0"
            environment["PATH"] = f"{bin_folder}{os.pathsep}{environment['PATH']}"
            as_anyone = AS_ANYONE if os.geteuid() == 0 else []
            done = subprocess.run(
                [*as_anyone, "sh", str(self.script)],
                cwd=work,
                env=environment,
                stdin=subprocess.DEVNULL,
                capture_output=True,
                timeout=TIME_LIMIT_S,
                check=False,
            )
            subprocess.run(["chmod", "-R", "u+rwx", folder], check=False)
        as_compared = with_slashes if emulator else str
        return {
            "stdout": as_compared(as_text(done.stdout)),
            "stderr": as_compared(as_text(done.stderr)),
            "exit": f"{done.returncode}\n",
        }

    def differences(self, result, emulator):
        """Printable lines; none when everything is as expected."""
        as_compared = with_slashes if emulator else str
        lines = []
        for ending, otherwise in (("stdout", ""), ("stderr", ""), ("exit", "0\n")):
            if ending == "stdout" and self.file("stdout.lines").exists():
                lines += self.missing_lines(result["stdout"])
                continue
            expected = as_compared(self.expected(ending, otherwise, emulator))
            lines += difflib.unified_diff(
                expected.splitlines(),
                result[ending].splitlines(),
                f"{self.name}.{ending}, expected",
                f"{self.name}.{ending}, found",
                lineterm="",
            )
            if not lines and expected != result[ending]:
                lines.append(f"{self.name}.{ending}: the last line ends differently")
        return lines

    def missing_lines(self, text):
        found = iter(line.strip() for line in text.splitlines())
        wanted = self.file("stdout.lines").read_text(encoding="ascii").splitlines()
        return [
            f"{self.name}: no line {line!r} where it is due"
            for line in wanted
            if line.strip() not in found
        ]

    def update(self, result):
        for ending, otherwise in (("stdout", ""), ("stderr", ""), ("exit", "0\n")):
            if ending == "stdout" and self.file("stdout.lines").exists():
                continue
            if result[ending] == otherwise:
                self.file(ending).unlink(missing_ok=True)
            else:
                self.file(ending).write_text(result[ending], encoding="ascii", newline="\n")


def run_case(case, arguments):
    """True unless the case fails."""
    try:
        result = case.run(
            arguments.tool.resolve(),
            arguments.examples.resolve(),
            arguments.faults and arguments.faults.resolve(),
            arguments.emulator,
        )
    except subprocess.TimeoutExpired:
        print(f"FAILED  {case.name}: still running after {TIME_LIMIT_S} s")
        return False
    if arguments.update:
        case.update(result)
    differences = case.differences(result, arguments.emulator)
    print(f"{'FAILED ' if differences else 'passed '} {case.name}")
    for line in differences:
        print(f"    {line}")
    return not differences


def main():
    parser = argparse.ArgumentParser(description="Tests of the command-line tool.")
    parser.add_argument("--tool", type=pathlib.Path, required=True)
    parser.add_argument("--examples", type=pathlib.Path, required=True)
    parser.add_argument("--faults", type=pathlib.Path)
    parser.add_argument("--emulator", type=shlex.split, default=[])
    parser.add_argument("--update", action="store_true", help="rewrite the expected files")
    parser.add_argument("cases", nargs="*", metavar="CASE")
    arguments = parser.parse_args()
    if arguments.update and arguments.emulator:
        parser.error("--update takes what a tool of this system does")

    cases = [Case(script) for script in sorted(CASES.glob("*.cmd"))]
    unknown = set(arguments.cases) - {case.name for case in cases}
    if unknown or not cases:
        print(f"no such case: {', '.join(sorted(unknown)) or CASES}", file=sys.stderr)
        return 1
    if arguments.cases:
        cases = [case for case in cases if case.name in arguments.cases]
    if arguments.emulator:
        cases = [case for case in cases if case.is_for_windows()]
    results = [run_case(case, arguments) for case in cases]
    print(f"{len(results)} cases, {results.count(False)} failed")
    return 0 if results and all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
