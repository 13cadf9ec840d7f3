#!/usr/bin/env python3
"""Changes one small thing at a time in src/ and sees whether a test notices.

    scripts/mutate.py                              every change in src: hours
    scripts/mutate.py src/reader --most 60         a sample of 60 in one folder
    scripts/mutate.py src/writer/writer.cpp --list what would be changed

A change is a flipped comparison, an off-by-one, a changed constant, operator or
error code, a dropped statement, two swapped arguments. The work is done in a copy
of the tree; nothing here is touched. The tests that noticed the last changes run
first, then all, the fastest program first; the first failure ends them. Printed are
the changes that no test noticed, and the score. Some of them change nothing that
can be seen; that is for the reader to judge.

Run by hand; not part of the checks.
"""

import argparse
import collections
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent

TESTS = [
    "touchstone2_unit_tests",
    "touchstone2_api_tests",
    "touchstone2_golden_tests",
    "touchstone2_property_tests",
    "touchstone2_claims_test",
    "touchstone2_hostile_files_test",
    "touchstone2_robustness_tests",
    "touchstone2_allocation_faults_test",
    "touchstone2_system_faults_test",
]
# Not worth a run, or only for other systems.
LEFT_OUT = re.compile(r"src/binding/|_win32\.cpp$")
MEMORY = 2 << 30  # bytes, mapped files not counted; a changed loop may never end
SUSPECTS = 12  # tests that noticed the last changes

# Kind, pattern, replacement. Operators are told from brackets of templates and
# from pointers by the blanks that the formatter puts around them.
REPLACEMENTS = [
    ("comparison", r" == ", " != "),
    ("comparison", r" != ", " == "),
    ("comparison", r" < ", " <= "),
    ("comparison", r" <= ", " < "),
    ("comparison", r" > ", " >= "),
    ("comparison", r" >= ", " > "),
    ("comparison", r" < ", " >= "),
    ("comparison", r" > ", " <= "),
    ("logic", r" && ", " || "),
    ("logic", r" \|\| ", " && "),
    ("logic", r"\bif \((?!!)", "if (!"),
    ("logic", r"!(?=[\w(])", ""),
    ("logic", r"\btrue\b", "false"),
    ("logic", r"\bfalse\b", "true"),
    ("arithmetic", r" \+ ", " - "),
    ("arithmetic", r" - ", " + "),
    ("arithmetic", r" \* ", " / "),
    ("arithmetic", r" / ", " * "),
    ("arithmetic", r" % ", " / "),
    ("arithmetic", r" \+= ", " -= "),
    ("arithmetic", r" -= ", " += "),
    ("arithmetic", r"\+\+(?=\w)", "--"),
    ("arithmetic", r"(?<=\w)\+\+", "--"),
    ("constant", r"(?<![\w.'])(\d+)(?![\w.'])", lambda m: str(int(m[1]) + 1)),
    ("constant", r"\bErrorType::\w+", "ErrorType::FileFormat"),
    ("argument", r"(?<=\()([\w.:*&\[\]>-]+), ([\w.:*&\[\]>-]+)(?=\))", r"\2, \1"),
]
# A whole statement on one line; declarations and returns are left alone.
STATEMENT = re.compile(
    r"^(\s*)(?!return\b|using\b|case\b|else\b|default\b|delete\b|template\b|static_assert\b"
    r"|struct\b|class\b|enum\b|constexpr\b|const\b|static\b|auto\b)"
    r"((?:\w[\w:.\[\]()*>-]*(?:\(.*\)| [-+|]?= .*)|(?:\+\+|--)[\w.>-]+|throw .*|break|continue));$"
)
# The statement behind a guard: "if (...) statement;"
GUARDED = re.compile(r"^(\s*if \(.*?\)) ((?:throw|return|break|continue|\w+\().*;)$")

COMMENT = re.compile(r"//.*$")
TEXT = re.compile(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)\'')

Change = collections.namedtuple("Change", "file line kind before after")


def masked(line):
    """The line with texts and comments blanked out, of the same length."""
    line = TEXT.sub(lambda m: m[0][0] + "_" * (len(m[0]) - 2) + m[0][-1], line)
    return COMMENT.sub(lambda m: " " * len(m[0]), line)


def changes_of_line(line):
    """(kind, changed line) of every change that the line allows."""
    mask = masked(line)
    if not mask.strip() or mask.lstrip().startswith(("#", "namespace", "static_assert")):
        return
    for kind, pattern, replacement in REPLACEMENTS:
        for match in re.finditer(pattern, mask):
            new = match.expand(replacement) if isinstance(replacement, str) else replacement(match)
            yield kind, line[: match.start()] + new + line[match.end() :]
    code = mask.rstrip()
    if statement := STATEMENT.match(code):
        yield "dropped", statement[1] + ";"
    elif guarded := GUARDED.match(code):
        yield "dropped", line[: guarded.end(1)] + " {}"


def changes_of_file(root, name):
    lines = (root / name).read_text(encoding="ascii").split("\n")
    seen = set()
    for number, line in enumerate(lines):
        for kind, after in changes_of_line(line):
            if after != line and (number, after) not in seen:
                seen.add((number, after))
                yield Change(name, number + 1, kind, line.strip(), after)


def list_changes(root, names):
    """The changes of all sources in `names`, files or folders below the root."""
    files = []
    for name in names:
        path = root / name
        found = sorted(path.rglob("*")) if path.is_dir() else [path]
        found = [file for file in found if file.suffix in {".cpp", ".h"}]
        files += [file.relative_to(root).as_posix() for file in found]
    files = [file for file in dict.fromkeys(files) if not LEFT_OUT.search(file)]
    return [change for file in files for change in changes_of_file(root, file)]


def limit_memory():
    resource.setrlimit(resource.RLIMIT_DATA, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Workshop:
    """A copy of the tree, optimised a little: compiled as fast, tested several times faster."""

    def __init__(self, folder, jobs):
        self.source = folder / "source"
        self.build_folder = folder / "build"
        self.jobs = str(jobs)
        self.tests = []  # (name, executable, seconds), fastest first
        self.suspects = []  # (program name, executable, test), the latest first
        ignore = shutil.ignore_patterns("build", ".git", "__pycache__")
        shutil.copytree(ROOT, self.source, ignore=ignore, dirs_exist_ok=True)

    def prepare(self):
        options = ["TOOLS=OFF", "BINDING=OFF", "EXAMPLES=OFF", "INSTALL=OFF", "WERROR=OFF"]
        linker = ["-fuse-ld=lld"] if shutil.which("ld.lld") else []
        subprocess.run(
            ["cmake", "-S", self.source, "-B", self.build_folder, "-G", "Ninja"]
            + ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O1 -g0 -w"]
            + ["-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"]
            + [f"-DCMAKE_{kind}_LINKER_FLAGS={' '.join(linker)}" for kind in ("EXE", "SHARED")]
            + [f"-DTOUCHSTONE2_{option}" for option in options],
            check=True,
            stdout=subprocess.DEVNULL,
        )
        if not self.build():
            sys.exit("mutate: the unchanged tree does not build")
        for name in TESTS:
            executable = next(self.build_folder.rglob(name), None)
            start = time.monotonic()
            if executable is None or self.first_failure(executable, 300) is not None:
                sys.exit(f"mutate: {name} fails in the unchanged tree")
            self.tests.append((name, executable, time.monotonic() - start))
        self.tests.sort(key=lambda test: test[2])

    def build(self):
        command = ["cmake", "--build", self.build_folder, "-j", self.jobs, "-t", *TESTS]
        return subprocess.run(command, capture_output=True).returncode == 0

    @staticmethod
    def first_failure(executable, seconds, tests="*"):
        """The test that failed, crashed or took too long; None if all passed.

        "*" if the program ended before the first one began.
        """
        with tempfile.TemporaryFile() as output:
            try:
                done = subprocess.run(
                    [executable, "--gtest_fail_fast", f"--gtest_filter={tests}"],
                    stdout=output,
                    stderr=subprocess.STDOUT,
                    timeout=seconds,
                    preexec_fn=limit_memory,
                    cwd=executable.parent,
                    env={**os.environ, "GTEST_COLOR": "no"},
                )
                if done.returncode == 0:
                    return None
            except subprocess.TimeoutExpired:
                pass
            output.seek(0)
            started = re.findall(rb"^\[ RUN +\] (\S+)", output.read(), re.MULTILINE)
            return started[-1].decode("ascii") if started else "*"

    def suspects_by_program(self):
        groups = {}
        for name, executable, test in self.suspects:
            groups.setdefault((name, executable), []).append(test)
        return groups.items()

    def remember(self, name, executable, test):
        if test == "*":
            return
        suspect = (name, executable, test)
        others = [other for other in self.suspects if other != suspect]
        self.suspects = [suspect, *others][:SUSPECTS]

    def run_tests(self):
        """Who noticed: the name of a test program, or nobody (None)."""
        for (name, executable), tests in self.suspects_by_program():
            if failed := self.first_failure(executable, 15, ":".join(tests)):
                self.remember(name, executable, failed)
                return name
        for name, executable, seconds in self.tests:
            if failed := self.first_failure(executable, 4 * seconds + 5):
                self.remember(name, executable, failed)
                return name
        return None

    def judge(self, change):
        """Who noticed: the name of a test program, "compiler", or nobody (None)."""
        file = self.source / change.file
        before = file.read_text(encoding="ascii")
        lines = before.split("\n")
        lines[change.line - 1] = change.after
        file.write_text("\n".join(lines), encoding="ascii")
        try:
            if not self.build():
                return "compiler"
            return self.run_tests()
        finally:
            file.write_text(before, encoding="ascii")


def show(change):
    return f"{change.file}:{change.line}: {change.kind}\n  - {change.before}\n  + {change.after.strip()}"


def tell_progress(number, count, noticed_by):
    """On standard error; the results go to standard output."""
    print(f"{number} of {count}: {noticed_by or 'not noticed'}", file=sys.stderr, flush=True)


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("paths", nargs="*", default=["src"], help="files or folders below src")
    parser.add_argument("--most", type=int, help="only so many changes, picked by chance")
    parser.add_argument("--seed", type=int, default=1, help="of the choice (default: 1)")
    parser.add_argument("--jobs", type=int, default=1, help="for compiling (default: 1)")
    parser.add_argument("--list", action="store_true", help="print the changes, try none")
    arguments = parser.parse_args()

    changes = list_changes(ROOT, arguments.paths)
    if not changes:
        sys.exit("mutate: there is nothing to change in " + " ".join(arguments.paths))
    if arguments.most is not None and arguments.most < len(changes):
        picked = random.Random(arguments.seed).sample(range(len(changes)), arguments.most)
        changes = [changes[index] for index in sorted(picked)]
    if arguments.list:
        print("\n".join(show(change) for change in changes))
        return

    outcomes = collections.Counter()
    with tempfile.TemporaryDirectory(prefix="touchstone2-mutate-") as folder:
        workshop = Workshop(pathlib.Path(folder), arguments.jobs)
        workshop.prepare()
        for number, change in enumerate(changes, start=1):
            noticed_by = workshop.judge(change)
            tell_progress(number, len(changes), noticed_by)
            outcomes[noticed_by] += 1
            if noticed_by is None:
                print("not noticed: " + show(change), flush=True)
    tried = sum(outcomes.values()) - outcomes["compiler"]
    print(f"\n{tried} changes, {outcomes[None]} not noticed; {outcomes['compiler']} did not compile")
    for name, count in outcomes.most_common():
        if name not in (None, "compiler"):
            print(f"  {count:4} noticed by {name}")
    if tried:
        print(f"score: {100 * (tried - outcomes[None]) / tried:.1f} %")


if __name__ == "__main__":
    main()
