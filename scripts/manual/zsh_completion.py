"""Completion for zsh, as arguments of _arguments."""

HEAD = """\
#compdef touchstone2
# Made by scripts/make_manual.py.

_touchstone2() {
    local context state state_descr line
    local -A opt_args
    local -a commands
    commands=(
"""


def quoted(text):
    return "'" + text.replace("'", r"'\''") + "'"


def explained(text):
    """Text inside the brackets of a specification."""
    return "".join("\\" + char if char in "[]:\\" else char for char in text)


def action(option):
    """Message and action, as they follow an option or a place."""
    what = f"({' '.join(option.choices)})" if option.choices else "_files"
    return f":{explained(option.placeholder)}:{what}"


def switch_specs(option):
    """One specification for each name; names of the same option exclude each other."""
    others = " ".join([*option.excludes, *(option.names if len(option.names) > 1 else ())])
    for name in option.names:
        prefix = "*" if option.many else (f"({others})" if others else "")
        ending = ""
        if option.placeholder:
            ending = "=" if name.startswith("--") else "+"
        value = action(option) if option.placeholder else ""
        yield quoted(f"{prefix}{name}{ending}[{explained(option.description)}]{value}")


def positional_specs(command):
    for place, option in enumerate(command.positionals, start=1):
        yield quoted(("*" if option.many else str(place)) + action(option))


def specs(command):
    for option in command.switches:
        yield from switch_specs(option)
    yield from positional_specs(command)


def call(indent, arguments):
    joint = " \\\n" + " " * (indent + 4)
    return " " * indent + "_arguments" + joint + joint.join(arguments) + "\n"


def zsh_completion(tool):
    text = HEAD
    for command in tool.commands:
        text += " " * 8 + quoted(f"{command.name}:{command.description}") + "\n"
    text += "    )\n"
    places = [quoted("1: :->command"), quoted("*:: :->argument")]
    text += call(4, ["-C", *specs(tool), *places])
    text += "    case $state in\n"
    text += "        command) _describe command commands ;;\n"
    text += "        argument)\n            case $words[1] in\n"
    for command in tool.commands:
        text += f"                {command.name})\n"
        text += call(20, list(specs(command))) + " " * 20 + ";;\n"
    text += "            esac\n            ;;\n    esac\n}\n\n"
    return text + '_touchstone2 "$@"\n'
