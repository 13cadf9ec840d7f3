#!/usr/bin/env python3
"""Tests of what the tool shows at a terminal.

    check_terminal.py --tool PATH --examples FOLDER

Standard error of the tool is a pseudo-terminal of 60 columns, standard output
a pipe unless a test says otherwise. Escape sequences are written as {red},
{bold} and so on in what is expected.
"""

import argparse
import fcntl
import os
import pathlib
import pty
import struct
import subprocess
import sys
import tempfile
import termios
import threading
import unittest

TOOL = None
EXAMPLES = None

SEQUENCES = {
    "\x1b[0m": "{/}",
    "\x1b[1m": "{bold}",
    "\x1b[1;31m": "{red}",
    "\x1b[1;35m": "{magenta}",
    "\x1b[1;34m": "{blue}",
    "\r\x1b[K": "{erase}",
}
OPTIONS = "# GHz S RI R 50\n"
HINT = "for more about an error, try `touchstone2 explain {}`\n"


def readable(data):
    text = data.decode("utf-8", errors="backslashreplace").replace("\r\n", "\n")
    for sequence, name in SEQUENCES.items():
        text = text.replace(sequence, name)
    return text


class Terminal:
    """A pseudo-terminal; what is written to it is collected."""

    def __init__(self, columns):
        self.reader, self.writer = pty.openpty()
        size = struct.pack("HHHH", 50, columns, 0, 0)
        fcntl.ioctl(self.writer, termios.TIOCSWINSZ, size)
        self.data = b""
        self.thread = threading.Thread(target=self.collect)
        self.thread.start()

    def collect(self):
        try:
            while chunk := os.read(self.reader, 65536):
                self.data += chunk
        except OSError:  # what Linux gives at the end
            pass

    def close(self):
        os.close(self.writer)
        self.thread.join()
        os.close(self.reader)
        return readable(self.data)


class TerminalTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="touchstone2-terminal-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "examples").symlink_to(EXAMPLES)

    def write(self, name, content):
        data = content if isinstance(content, bytes) else content.encode()
        (self.folder / name).write_bytes(data)

    def start(self, *arguments, columns, stdin, stdout, variables):
        environment = {"PATH": os.environ["PATH"], "TERM": "xterm", "LC_ALL": "C"}
        environment.update(variables)
        return subprocess.Popen(
            [TOOL, *arguments],
            cwd=self.folder,
            env=environment,
            stdin=stdin,
            stdout=stdout,
            stderr=columns.writer,
        )

    def run_tool(self, *arguments, columns=60, stdin=b"", colour=False, **variables):
        """What standard error, a terminal, and standard output have got."""
        if not colour:
            variables.setdefault("NO_COLOR", "1")
        terminal = Terminal(columns)
        process = self.start(
            *arguments,
            columns=terminal,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            variables=variables,
        )
        output, _ = process.communicate(stdin, timeout=60)
        self.exit_code = process.returncode
        return terminal.close(), output.decode()

    def shown(self, *arguments, **keywords):
        return self.run_tool(*arguments, **keywords)[0]


class SourceLines(TerminalTest):
    def test_the_word_is_underlined(self):
        error, output = self.run_tool("check", "examples/broken/decimal_commas.s1p", columns=100)
        self.assertEqual(
            error,
            "examples/broken/decimal_commas.s1p:3:5: error E2007: expected to find numeric data\n"
            "    3 | 100 0,512 -0,233\n"
            "      |     ^~~~~\n" + HINT.format("E2007"),
        )
        self.assertEqual(
            output,
            "examples/broken/decimal_commas.s1p: refused, 1 error\n1 file: 0 valid, 1 refused\n",
        )

    def test_colours(self):
        self.write("a.s1p", "! \x01\n# GHz S RI R 50\n2 1 1\n1 1 1\n")
        self.assertEqual(
            self.shown("check", "a.s1p", colour=True),
            "{bold}a.s1p:1:3:{/} {magenta}warning W2003:{/} {bold}invalid character '\\x01' in a "
            "comment line. Non-US-ASCII characters violate the Touchstone Specification and may "
            "result in file reading failure.{/}\n"
            "{blue}    1 | {/}! \\x01\n"
            "{blue}      | {/}  {magenta}^~~~{/}\n"
            "{bold}a.s1p:4:1:{/} {red}error E2311:{/} {bold}frequency points must be listed in "
            "increasing order, but 1 is not greater than 2{/}\n"
            "{blue}    4 | {/}1 1 1\n"
            "{blue}      | {/}{red}^{/}\n" + HINT.format("E2311"),
        )

    def test_no_colours_when_they_are_not_wanted(self):
        path = "examples/broken/frequency_order.s2p"
        plain = self.shown("check", path)
        self.assertIn("    5 | 150 ", plain)
        self.assertNotIn("{", plain)
        self.assertEqual(self.shown("check", path, colour=True, TERM="dumb"), plain)
        self.assertIn("{red}", self.shown("check", path, colour=True, NO_COLOR=""))

    def test_plain_lines_on_demand(self):
        for command in (["check"], ["info"], ["convert", "--to", "v2", "-o", "-"]):
            self.assertEqual(
                self.shown(*command, "--plain", "examples/broken/glued_options.s1p", colour=True),
                "examples/broken/glued_options.s1p:2:2: error E2006: expected whitespace\n",
            )

    def test_every_command_shows_the_same(self):
        path = "examples/broken/glued_options.s1p"
        expected = self.shown("check", path)
        self.assertIn("    2 | #MHz", expected)
        for command in (["info"], ["ports"], ["convert", "-o", "-"]):
            self.assertEqual(self.shown(*command, path), expected)

    def test_standard_input(self):
        self.assertIn(
            "<stdin>:3:5: error E2007: expected to find numeric data\n"
            "    3 | 2 3 x4\n"
            "      |     ^~\n",
            self.shown("check", "-", stdin=b"# GHz S RI R 50\n1 2 3\n2 3 x4\n"),
        )

    def test_a_keyword_is_underlined_with_its_brackets(self):
        self.write("a.ts", "[Version] 2.0\n# GHz\n[Number of Gates] 2\n")
        self.assertIn(
            "    3 | [Number of Gates] 2\n      | ^~~~~~~~~~~~~~~~~\n", self.shown("check", "a.ts")
        )

    def test_the_line_of_the_first_word_of_a_record(self):
        records = "".join(f"{i} .1 .2 .3 .4 .5 .6 .7 .8\n" for i in range(1, 500))
        for end in ("\n", "\r\n", "\r"):
            text = OPTIONS + records + "7 .1 .2 .3 .4 .5 .6 .7 .8\n500 1 2 3 4 5 6 7 8\n"
            self.write("a.s2p", text.replace("\n", end))
            self.assertIn(
                "  501 | 7 .1 .2 .3 .4 .5 .6 .7 .8\n      | ^\n", self.shown("check", "a.s2p")
            )

    def test_behind_the_end_of_a_line(self):
        self.write("a.s1p", OPTIONS + "1 2 3")
        self.assertIn("    2 | 1 2 3\n      |      ^\n", self.shown("check", "a.s1p"))

    def test_an_error_without_a_position_has_no_line(self):
        self.assertEqual(
            self.shown("check", "missing.s1p"),
            "missing.s1p: error E1001: file not found\n" + HINT.format("E1001"),
        )


class OddLines(TerminalTest):
    def excerpt(self, line, **keywords):
        """The two lines below the error in the second line of a file."""
        data = line if isinstance(line, bytes) else line.encode()
        self.write("a.s1p", OPTIONS.encode() + data + b"\n")
        lines = self.shown("check", "a.s1p", **keywords).split("\n")
        error = next(i for i, text in enumerate(lines) if " error E" in text)
        return lines[error + 1 : error + 3]

    def test_tabs_are_expanded(self):
        self.assertEqual(
            self.excerpt("1\t2\t\tx"),
            ["    2 | 1       2               x", "      |                         ^"],
        )

    def test_bytes_that_are_no_characters(self):
        self.assertEqual(
            self.excerpt(b"1 \xe9\x1b[2J"), ["    2 | 1 \\xe9\\x1b[2J", "      |   ^~~~"]
        )

    def test_characters_take_their_cells(self):
        self.write("a.s1p", "! \u4e2d \x01\n" + OPTIONS + "1 2 3\n")
        lines = self.shown("check", "a.s1p").split("\n")
        self.assertEqual(lines.count("    1 | ! \u4e2d \\x01"), 4)
        self.assertEqual(lines.count("      |   ^~"), 3)  # its three bytes
        self.assertEqual(lines.count("      |      ^~~~"), 1)

    def test_long_lines_are_cut_around_the_place(self):
        numbers = " ".join(str(i) for i in range(1, 200))
        begin = self.excerpt("1 x " + numbers)
        self.assertEqual(begin[0], "    2 | 1 x 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 1\u2026")
        self.assertEqual(begin[1], "      |   ^")
        middle = self.excerpt(numbers[:300] + " x " + numbers[300:])
        self.assertEqual(len(middle[0]), 59)
        self.assertEqual(middle[0][8], "\u2026")
        self.assertEqual(middle[0][-1], "\u2026")
        self.assertEqual(middle[0][middle[1].index("^")], "x")
        end = self.excerpt(numbers + " x")
        self.assertTrue(end[0].startswith("    2 | \u2026") and end[0].endswith(" 199 x"))
        self.assertEqual(end[0].index("x"), end[1].index("^"))

    def test_a_line_of_megabytes(self):
        lines = self.excerpt("1 " * 1000000 + "x" + " 1" * 1000000)
        self.assertEqual(len(lines[0]), 59)
        self.assertEqual(lines[0][lines[1].index("^")], "x")

    def test_a_word_longer_than_the_terminal(self):
        lines = self.excerpt("1 " + "x" * 500)
        self.assertEqual(lines[0][:11] + lines[0][-1], "    2 | 1 x\u2026")
        self.assertEqual(lines[1], "      |   " + "^" + "~" * (len(lines[0]) - 11))

    def test_columns_before_the_terminal(self):
        self.assertEqual(len(self.excerpt("x " * 300, COLUMNS="40")[0]), 39)
        self.assertEqual(len(self.excerpt("x " * 300, COLUMNS="0")[0]), 59)


class Pages(TerminalTest):
    """Standard output is the terminal, too."""

    def page(self, *arguments, columns=60, **variables):
        terminal = Terminal(columns)
        process = self.start(
            "explain",
            *arguments,
            columns=terminal,
            stdin=subprocess.DEVNULL,
            stdout=terminal.writer,
            variables=variables,
        )
        process.wait(timeout=60)
        return terminal.close()

    def test_headings_are_bold(self):
        lines = self.page("E2006").split("\n")
        self.assertEqual(lines[0], "{red}E2006{/}{bold}: expected whitespace{/}")
        self.assertIn("{bold}Example:{/}", lines)
        self.assertIn("{bold}What to do:{/}", lines)
        self.assertIn("{magenta}W2005{/}{bold}: ", self.page("W2005"))

    def test_no_colours_when_they_are_not_wanted(self):
        plain = self.page("E2006", "--plain", columns=80)
        self.assertNotIn("{", plain)
        self.assertEqual(self.page("E2006", columns=80, NO_COLOR="1"), plain)
        self.assertEqual(self.page("E2006", columns=80, TERM="dumb"), plain)

    def test_lines_fit_the_terminal(self):
        lines = self.page("W2010", columns=40, NO_COLOR="1").split("\n")
        texts = [line for line in lines[1:] if not line.startswith("    ")]
        self.assertLessEqual(max(map(len, texts)), 40)


class ManyWarnings(TerminalTest):
    def test_alike_warnings_are_folded(self):
        comments = "".join(f"! {i} \x01\n" for i in range(1239))
        self.write("a.s1p", comments + OPTIONS + "1 2 3")
        error, output = self.run_tool("check", "a.s1p")
        self.assertEqual(error.count("warning W2003"), 5)
        self.assertEqual(error.count("warning W2005"), 1)
        self.assertTrue(error.endswith("\n\u2026 and 1,234 more warnings W2003 in a.s1p\n"), error)
        self.assertIn("a.s1p: valid, 1240 warnings\n", output)

    def test_the_rest_is_told_before_an_error(self):
        self.write("a.s1p", "! \x01\n" * 6 + OPTIONS + "x\n")
        lines = self.shown("check", "a.s1p").split("\n")
        rest = lines.index("\u2026 and 1 more warning W2003 in a.s1p")
        self.assertIn("error E2007", lines[rest + 1])

    def test_nothing_is_folded_in_plain_lines(self):
        self.write("a.s1p", "! \x01\n" * 9 + OPTIONS + "1 2 3\n")
        self.assertEqual(self.shown("check", "--plain", "a.s1p").count("warning W2003"), 9)

    def test_the_jobs_make_no_difference(self):
        self.assertEqual(
            self.shown("check", "-j4", "examples"), self.shown("check", "-j1", "examples")
        )


class Progress(TerminalTest):
    def start_slow_run(self, *arguments, **keywords):
        """A run that lasts: its first file is a pipe that stays open."""
        self.write("b.s1p", OPTIONS + "x\n")
        terminal = Terminal(60)
        process = self.start(
            "check",
            "-",
            *arguments,
            columns=terminal,
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            variables=dict({"NO_COLOR": "1"}, **keywords),
        )
        with self.assertRaises(subprocess.TimeoutExpired):
            process.wait(1.6)
        process.communicate(OPTIONS.encode() + b"1 2 3\n", timeout=60)
        return terminal.close()

    def test_a_long_run_says_how_far_it_is(self):
        shown = self.start_slow_run("b.s1p", "-j1")
        before, _, after = shown.partition("b.s1p:2:1: error")
        self.assertTrue(before.startswith("0 of 2 files, 0.00 of 0.02 kB{erase}"), shown)
        self.assertTrue(before.endswith("{erase}"), shown)
        self.assertTrue(after.endswith("{erase}" + HINT.format("E2007")), shown)
        self.assertNotIn("files", "".join(part.rpartition("\n")[0] for part in shown.split("{erase}")))

    def test_it_is_gone_at_the_end(self):
        shown = self.start_slow_run()
        self.assertTrue(shown.endswith("{erase}"), shown)

    def test_plain_and_dumb_terminals_do_not_see_it(self):
        self.assertEqual(self.start_slow_run("--plain"), "")
        self.assertEqual(self.start_slow_run(TERM="dumb"), "")


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description="Tests of what a terminal shows.")
    parser.add_argument("--tool", type=pathlib.Path, required=True)
    parser.add_argument("--examples", type=pathlib.Path, required=True)
    arguments, rest = parser.parse_known_args()
    TOOL = arguments.tool.resolve()
    EXAMPLES = arguments.examples.resolve()
    unittest.main(argv=[sys.argv[0], *rest])
