"""What the checks need to know of a Markdown page: its links, headings and code blocks."""

import pathlib
import re

FENCE = re.compile(r"```(\w*)\s*$")
HEADING = re.compile(r"(#+)\s+(.*?)\s*#*$")
LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")
INLINE_CODE = re.compile(r"`([^`]+)`")
DIRECTIVE = re.compile(r"<!--\s*(file|skip):\s*(.*?)\s*-->\s*$")


class Block:
    """A fenced code block. `directive` is what an HTML comment in front of it says."""

    def __init__(self, language, line, directive):
        self.language = language
        self.line = line  # of the opening fence, from 1
        self.directive = directive  # ("file", NAME), ("skip", REASON) or (None, "")
        self.lines = []

    @property
    def text(self):
        return "".join(line + "\n" for line in self.lines)


class Page:
    """One Markdown file, cut into code blocks and the rest."""

    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.lines = self.path.read_text(encoding="utf-8").splitlines()
        self.blocks = []
        self.prose = []  # (line number, text)
        self.split()

    def split(self):
        block = None
        directive = (None, "")
        for number, line in enumerate(self.lines, start=1):
            fence = FENCE.match(line)
            if block is not None:
                if fence and not fence.group(1):
                    self.blocks.append(block)
                    block = None
                else:
                    block.lines.append(line)
            elif fence:
                block = Block(fence.group(1), number, directive)
                directive = (None, "")
            else:
                self.prose.append((number, line))
                found = DIRECTIVE.match(line)
                if found:
                    directive = found.groups()
                elif line.strip():
                    directive = (None, "")
        if block is not None:
            raise ValueError(f"{self.path}:{block.line}: this code block has no end")

    def links(self):
        """Pairs of line number and target."""
        for number, line in self.prose:
            for target in LINK.findall(INLINE_CODE.sub("", line)):
                yield number, target

    def inline_code(self):
        for number, line in self.prose:
            for text in INLINE_CODE.findall(line):
                yield number, text

    def anchors(self):
        """The names by which links reach the headings, as code hosts and the site make them."""
        names = set()
        for _, line in self.prose:
            heading = HEADING.match(line)
            if not heading:
                continue
            text = re.sub(r"[^\w\- ]", "", heading.group(2).lower()).replace(" ", "-")
            name, count = text, 0
            while name in names:
                count += 1
                name = f"{text}-{count}"
            names.add(name)
        return names
