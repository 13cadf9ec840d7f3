"""A man page of a command, in the macros that man(7) describes."""

import re

SPECIAL = {"\\": r"\e", "'": r"\(aq", '"': r"\(dq", "`": r"\(ga", "^": r"\(ha", "~": r"\(ti"}
EXIT_STATUS = "Exit code: "
EXAMPLES = "Examples:"


def literal(text):
    """Text that is shown letter for letter; "-" stays the sign that a shell understands."""
    escaped = "".join(SPECIAL.get(char, char) for char in text).replace("-", r"\-")
    return r"\&" + escaped if escaped.startswith(".") else escaped


def running(text):
    """A line of a paragraph. A hyphen inside a word is a hyphen, one in front is an option's."""
    escaped = "".join(SPECIAL.get(char, char) for char in text)
    escaped = re.sub(r"(?<![\w-])-+", lambda dashes: r"\-" * len(dashes.group()), escaped)
    return r"\&" + escaped if escaped.startswith(".") else escaped


def bold(text):
    return rf"\fB{literal(text)}\fR"


def italic(text):
    return rf"\fI{literal(text)}\fR"


def value(option):
    """Words to be typed are bold, the others stand for something."""
    words = option.placeholder.split("|")
    shown = "|".join(italic(word) if word.isupper() else bold(word) for word in words)
    if len(words) == 1 and "=" in option.placeholder:
        shown = "=".join(italic(part) for part in option.placeholder.split("="))
    return shown


def switch_with_value(option, name):
    return f"{bold(name)} {value(option)}" if option.placeholder else bold(name)


def synopsis(command):
    parts = [bold(f"touchstone2 {command.name}"), f"[{italic('OPTION')}]..."]
    parts += [switch_with_value(o, o.names[0]) for o in command.switches if o.required]
    for option in command.positionals:
        shown = value(option) + ("..." if option.many else "")
        parts.append(shown if option.required else f"[{shown}]")
    return " ".join(parts)


def described(tag, text):
    return [".TP", tag, running(text + ".")]


def switch_lines(option):
    tag = ", ".join(switch_with_value(option, name) for name in option.names)
    remarks = []
    if option.many and "repeated" not in option.description:
        remarks.append("may be repeated")
    if option.required:
        remarks.append("required")
    excluded = [name for name in option.excludes if name.startswith("--")]
    if excluded:
        remarks.append("not together with " + ", ".join(excluded))
    return described(tag, "; ".join([option.description, *remarks]))


def block_lines(block):
    """A paragraph: indented lines stay as they are, the others are filled."""
    lines = []
    in_example = False
    for line in block:
        if line.startswith(" ") != in_example:
            in_example = not in_example
            lines += [".PP", ".in +4n", ".EX"] if in_example else [".EE", ".in"]
        lines.append(literal(line.strip()) if in_example else running(line))
    return lines + ([".EE", ".in"] if in_example else [])


def labelled(block):
    """A paragraph "JSON: one object ..." is told from the others by its bold label."""
    lines = block_lines(block)
    match = re.match(r"([A-Z]\w*): ", block[0])
    if match:
        lines[0] = bold(match.group(1) + ":") + " " + running(block[0][match.end() :])
    return lines


def exit_status(block):
    """"0 done; 1 refused" becomes a list."""
    lines = []
    for item in " ".join(block).removeprefix(EXIT_STATUS).split("; "):
        number, _, meaning = item.partition(" ")
        if not number.isdigit():
            return block_lines([block[0].removeprefix(EXIT_STATUS), *block[1:]])
        lines += [".TP", bold(number), running(meaning.rstrip(".") + ".")]
    return lines


def footer_sections(footer):
    """Name of a section -> its lines, in the order in which a page has them."""
    sections = {"DESCRIPTION": [], "EXIT STATUS": [], "EXAMPLES": []}
    for paragraph in re.split(r"\n\n+", footer.strip("\n")):
        block = paragraph.split("\n")
        if block[0] == EXAMPLES:
            sections["EXAMPLES"] += block_lines(block[1:])[1:]
        elif block[0].startswith(EXIT_STATUS):
            sections["EXIT STATUS"] += exit_status(block)
        else:
            lines = labelled(block)
            sections["DESCRIPTION"] += lines if lines[0] == ".PP" else [".PP", *lines]
    return sections


def section(name, lines):
    if lines and lines[0] == ".PP":  # a heading begins a paragraph by itself
        lines = lines[1:]
    return [f".SH {name}", *lines] if lines else []


def head(title, tool, date, summary):
    title = title.upper()
    return [
        '.\\" Made by scripts/make_manual.py from what the tool says of its commands.',
        f'.TH "{literal(title)}" 1 {date} "touchstone2 {tool.version}"',
        ".SH NAME",
        f"{literal(title.lower())} \\- {running(summary.rstrip('.'))}",
    ]


def page_name(command):
    return f"touchstone2-{command.name}"


def see_also(names):
    return [f".BR {literal(name)} (1)" + "," * (name != names[-1]) for name in names]


def command_page(tool, command, date):
    """The page of one command."""
    sections = footer_sections(command.footer)
    lines = head(page_name(command), tool, date, command.description)
    lines += section("SYNOPSIS", [synopsis(command)])
    arguments = [described(value(o), o.description) for o in command.positionals]
    described_lines = [line for argument in arguments for line in argument]
    lines += section("DESCRIPTION", sections["DESCRIPTION"])
    lines += section("ARGUMENTS", described_lines)
    lines += section("OPTIONS", [x for o in command.switches for x in switch_lines(o)])
    lines += section("EXIT STATUS", sections["EXIT STATUS"])
    lines += section("EXAMPLES", sections["EXAMPLES"])
    others = [page_name(other) for other in tool.commands if other is not command]
    lines += section("SEE ALSO", see_also(["touchstone2", *others]))
    return "\n".join(lines) + "\n"


def tool_page(tool, date):
    """The page that lists the commands."""
    sections = footer_sections(tool.footer)
    lines = head(tool.name, tool, date, tool.description)
    command, arguments = italic("COMMAND"), f"[{italic('ARGUMENT')}]..."
    lines += section("SYNOPSIS", [f"{bold(tool.name)} {command} {arguments}"])
    lines += section("DESCRIPTION", sections["DESCRIPTION"])
    lines += section("COMMANDS", [x for c in tool.commands for x in command_lines(c)])
    lines += section("OPTIONS", [x for o in tool.switches for x in switch_lines(o)])
    lines += section("EXIT STATUS", sections["EXIT STATUS"])
    lines += section("EXAMPLES", sections["EXAMPLES"])
    lines += section("SEE ALSO", see_also([page_name(command) for command in tool.commands]))
    return "\n".join(lines) + "\n"


def command_lines(command):
    return [".TP", f".BR {literal(page_name(command))} (1)", running(command.description + ".")]
