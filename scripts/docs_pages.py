#!/usr/bin/env python3
"""Lays out the pages of the site: run by scripts/docs.sh.

    docs_pages.py --tool PATH --xml FOLDER OUTPUT

The pages are those of docs/ and the few Markdown files outside that docs/README.md,
the site's first page, links to. Added are a page for every command of the tool, made
of its --help, and one for every public header, made of its first comment and the
names in Doxygen's XML. Navigation follows the sections of docs/README.md; pages that it
does not list come behind. The README.md of a folder of docs/ leads to the folder's pages.

Links between pages stay links, links to headers lead to the reference, and links to
other files of the tree to a copy of the file.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCS = ROOT / "docs"
HEADERS = ROOT / "include" / "touchstone2"
FIRST_PAGE = DOCS / "README.md"

LINK = re.compile(r"(?<!!)\[([^\]]*)\]\(([^)\s#]+)(#[^)\s]*)?\)")
PICTURE = re.compile(r"<!-- picture: (\S+) -->\n```text\n.*?\n```\n", re.DOTALL)
DIRECTIVE = re.compile(r"<!--.*?-->\n")
CODE = re.compile(r"::|//|[;{]$", re.MULTILINE)


def toctree(entries, caption=None, hidden=True):
    options = [":hidden:"] if hidden else []
    if caption:
        options.append(f":caption: {caption}")
    return "\n".join(["", "```{toctree}", *options, "", *entries, "```", ""])


class Site:
    """Where pages come from and where they go."""

    def __init__(self, output):
        self.output = output
        self.extra = output / "_extra"
        self.places = {}  # file of the tree -> its page, without the ending
        for file in sorted(DOCS.rglob("*.md")):
            self.add(file, file.relative_to(DOCS))
        self.add(ROOT / "examples" / "README.md", pathlib.Path("examples/README.md"))
        self.add(ROOT / "CHANGELOG.md", pathlib.Path("changelog.md"))
        self.add(ROOT / "CONTRIBUTING.md", pathlib.Path("contributing.md"))
        for header in sorted(HEADERS.rglob("*.h")):
            name = header.relative_to(HEADERS).with_suffix("")
            self.places[header] = f"api/{name.as_posix().replace('/', '-')}"

    def add(self, file, place):
        if place.name == "README.md":
            place = place.with_name("index.md")
        self.places[file] = place.with_suffix("").as_posix()

    def write(self, place, text):
        file = self.output / (place + ".md")
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def write_settings(self):
        static = self.output / "_static"
        static.mkdir()
        shutil.copyfile(DOCS / "site" / "site.css", static / "site.css")
        shutil.copyfile(DOCS / "site" / "conf.py", self.output / "conf.py")

    def page(self, file):
        """The text of a page with its links and pictures made those of the site."""
        text = file.read_text(encoding="utf-8")
        text = PICTURE.sub(lambda found: picture(DOCS / "site" / found.group(1)), text)
        parts = re.split(r"(^```.*?^```$)", text, flags=re.DOTALL | re.MULTILINE)
        for i in range(0, len(parts), 2):
            parts[i] = DIRECTIVE.sub("", parts[i])
            parts[i] = LINK.sub(lambda found: self.link(file, found), parts[i])
        return "".join(parts)

    def link(self, file, found):
        title, target, anchor = found.groups()
        goal = (file.parent / target).resolve()
        here = pathlib.PurePosixPath(self.places[file]).parent.as_posix()
        if goal.is_dir() and goal / "README.md" in self.places:
            goal = goal / "README.md"
        if goal in self.places:
            return f"[{title}]({os.path.relpath(self.places[goal], here)}.md{anchor or ''})"
        if not goal.is_file():
            return title
        copy = pathlib.PurePosixPath("files") / (goal.relative_to(ROOT).as_posix() + ".txt")
        (self.extra / copy).parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(goal, self.extra / copy)
        return f'<a href="{os.path.relpath(copy, here)}">{title}</a>'

    def write_pages(self):
        for file, place in self.places.items():
            if file.suffix == ".md" and file != FIRST_PAGE:
                self.write(place, self.page(file) + self.pages_below(file))
        self.write("index", self.page(FIRST_PAGE) + self.navigation())

    def pages_below(self, file):
        """A folder's README.md leads to the other pages of the folder."""
        if file.name != "README.md":
            return ""
        entries = [f.stem for f in sorted(file.parent.glob("*.md")) if f != file]
        return toctree(entries) if entries else ""

    def pages_that_nothing_leads_to(self, listed):
        """Pages of docs/ that neither the first page nor a README.md beside them lists."""
        for file in sorted(DOCS.rglob("*.md")):
            guide = file.parent / "README.md"
            below_guide = guide.exists() and guide not in (file, FIRST_PAGE)
            if file != FIRST_PAGE and not below_guide and self.places[file] not in listed:
                yield file

    def navigation(self):
        """One group for each section of the first page, and what this script has made."""
        trees = []
        listed = set()
        text = FIRST_PAGE.read_text(encoding="utf-8")
        for section in re.split(r"^## ", text, flags=re.MULTILINE)[1:]:
            goals = [(DOCS / target).resolve() for _, target, _ in LINK.findall(section)]
            entries = [self.places[goal] for goal in goals]
            trees.append(toctree(entries, section.splitlines()[0]))
            listed.update(entries)
        others = [self.places[file] for file in self.pages_that_nothing_leads_to(listed)]
        trees.append(toctree([*others, "commands/index", "api/index"], "Reference"))
        return "".join(trees)


def picture(source):
    """A graph as a part of the page, in the colours of its text."""
    done = subprocess.run(["dot", "-Tsvg", source], capture_output=True, text=True, check=True)
    svg = done.stdout[done.stdout.index("<svg") :]
    svg = re.sub(r"<!--.*?-->\n?", "", svg, flags=re.DOTALL)
    svg = svg.replace('stroke="black"', 'stroke="currentColor"')
    svg = svg.replace('fill="black"', 'fill="currentColor"')
    svg = svg.replace("<text ", '<text fill="currentColor" ')
    return f'```{{raw}} html\n<div class="picture">\n{svg}</div>\n```\n'


def help_of(tool, *command):
    done = subprocess.run([tool, *command, "--help"], capture_output=True, text=True, check=True)
    return done.stdout


def write_commands(site, tool):
    """A page for every command that the tool's own help lists."""
    overview = help_of(tool)
    listed = overview.split("Subcommands:\n")[1].split("\n\n")[0]
    commands = [line.split(maxsplit=1) for line in listed.splitlines()]
    rows = "".join(f"| [{name}]({name}.md) | {does} |\n" for name, does in commands)
    site.write(
        "commands/index",
        "# Commands of the tool\n\n"
        "What `touchstone2 COMMAND --help` prints, one page a command.\n\n"
        f"| command | what it does |\n|---|---|\n{rows}\n```text\n{overview}```\n"
        + toctree([name for name, _ in commands]),
    )
    for name, _ in commands:
        text = help_of(tool, name)
        site.write(f"commands/{name}", f"# touchstone2 {name}\n\n```text\n{text}```\n")


def first_comment(header):
    """A header's own comment as Markdown: what is indented is code."""
    lines = []
    for line in header.read_text(encoding="utf-8").splitlines():
        if not line.startswith("///"):
            break
        lines.append(line[4:])
    text = "\n".join(lines) + "\n"
    code = re.compile(r"(?:^    .*\n|^\n(?=    ))+", re.MULTILINE)

    def fenced(found):
        body = re.sub(r"^    ", "", found.group(0), flags=re.MULTILINE).strip("\n")
        language = "cpp" if CODE.search(body) else "text"
        return f"\n```{language}\n{body}\n```\n"

    return code.sub(fenced, text)


def dissolve_groups(definition):
    """Puts the members that share a comment among the others, in the header's order."""
    if definition.get("kind") not in ("class", "struct"):
        return
    sections = {s.get("kind"): s for s in definition.findall("sectiondef")}
    for group in definition.findall("sectiondef[@kind='user-defined']"):
        for member in group.findall("memberdef"):
            kind = f"{member.get('prot')}-func"
            if kind not in sections:
                sections[kind] = ElementTree.SubElement(definition, "sectiondef", kind=kind)
            sections[kind].append(member)
        definition.remove(group)
    for section in definition.findall("sectiondef"):
        members = section.findall("memberdef")
        for member in members:
            section.remove(member)
        section.extend(sorted(members, key=lambda m: int(m.find("location").get("line"))))


def fixed_messages():
    """The sentence of every code, by the name of its enumerator."""
    text = (ROOT / "src" / "reader" / "error_messages.cpp").read_text(encoding="utf-8")
    rows = re.findall(r'\{ErrorType::(\w+),\s*((?:"[^"\n]*"\s*)+)\}', text)
    return {name: "".join(re.findall(r'"([^"]*)"', parts)) for name, parts in rows}


def describe_enumerators(definition):
    """Gives every enumerator its number, and a diagnostic's code its sentence."""
    messages = fixed_messages()
    for enum in definition.iter("memberdef"):
        for value in enum.findall("enumvalue"):
            name = value.findtext("name")
            texts = [value.findtext("initializer").removeprefix("= ")]
            if enum.findtext("name") == "ErrorType":
                texts.append(messages[name])
            brief = value.find("briefdescription")
            comment = brief.find("para")
            if comment is None:
                comment = ElementTree.SubElement(brief, "para")
            elif comment.text:
                texts.append(comment.text)
            comment.text = "; ".join(texts)


class Reference:
    """The public names of each header, from Doxygen's XML."""

    # Kind of a member -> the directive that shows it.
    MEMBERS = {"enum": "doxygenenum", "function": "doxygenfunction", "define": "doxygendefine"}

    def __init__(self, folder):
        self.names = {}  # header, as "model/file.h" -> list of directives
        index = ElementTree.parse(folder / "index.xml").getroot()
        for compound in index.findall("compound"):
            kind = compound.get("kind")
            if kind in ("class", "struct", "file", "namespace"):
                file = folder / (compound.get("refid") + ".xml")
                tree = ElementTree.parse(file)
                definition = tree.getroot().find("compounddef")
                dissolve_groups(definition)
                describe_enumerators(definition)
                tree.write(file, encoding="utf-8")
                self.add(kind, definition)

    def add(self, kind, compound):
        if kind in ("class", "struct"):
            name = compound.findtext("compoundname")
            if "detail::" not in name and name.count("::") == 1:
                self.put(compound, f"doxygen{kind}", name, [":members:", ":protected-members:"])
            return
        for member in compound.iter("memberdef"):
            directive = self.MEMBERS.get(member.get("kind"))
            name = member.findtext("name")
            if directive is None or (kind == "file") != (directive == "doxygendefine"):
                continue
            if member.find("briefdescription/para") is None and (
                member.find("detaileddescription/para") is None
            ):
                continue
            if kind == "namespace":
                name = f"{compound.findtext('compoundname')}::{name}"
            if directive == "doxygenfunction":
                name += self.parameters(member)
            self.put(member, directive, name, [])

    @staticmethod
    def parameters(member):
        types = ["".join(p.find("type").itertext()) for p in member.findall("param")]
        return f"({', '.join(types)})"

    def put(self, element, directive, name, options):
        location = element.find("location").get("file").removeprefix("touchstone2/")
        line = int(element.find("location").get("line"))
        text = "\n".join([f".. {directive}:: {name}", *(f"   {o}" for o in options), ""])
        self.names.setdefault(location, []).append((line, text))

    def page(self, header):
        name = header.relative_to(HEADERS).as_posix()
        page = f"# {name}\n\n```cpp\n#include <touchstone2/{name}>\n```\n\n{first_comment(header)}"
        directives = [text for _, text in sorted(self.names.get(name, []))]
        if directives:
            page += "\n## Names\n\n```{eval-rst}\n" + "\n".join(directives) + "```\n"
        return page


def write_reference(site, xml):
    reference = Reference(xml)
    headers = [file for file in site.places if file.suffix == ".h"]
    rows = ""
    for header in headers:
        name = header.relative_to(HEADERS).as_posix()
        place = site.places[header]
        site.write(place, reference.page(header))
        title = first_comment(header).split("\n\n")[0].replace("\n", " ")
        rows += f"| [{name}]({pathlib.PurePosixPath(place).name}.md) | {title} |\n"
    entries = [pathlib.PurePosixPath(site.places[header]).name for header in headers]
    site.write(
        "api/index",
        "# Public headers\n\nEvery public name, header by header. `#include "
        "<touchstone2/touchstone2.h>` takes them all.\n\n| header | about |\n|---|---|\n"
        + rows
        + toctree(entries),
    )


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--tool", required=True)
    parser.add_argument("--xml", required=True, type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    arguments = parser.parse_args()
    shutil.rmtree(arguments.output, ignore_errors=True)
    site = Site(arguments.output)
    site.extra.mkdir(parents=True)
    site.write_settings()
    site.write_pages()
    write_commands(site, arguments.tool)
    write_reference(site, arguments.xml)
    return 0


if __name__ == "__main__":
    sys.exit(main())
