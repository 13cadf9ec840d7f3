"""Completion for fish, one line for each thing that may be typed."""


def quoted(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def line(condition, *arguments):
    return " ".join(["complete -c touchstone2 -n", quoted(condition), *arguments]) + "\n"


def switch_arguments(option):
    for name in option.names:
        yield f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}"
    if option.choices:
        yield f"-x -a {quoted(' '.join(option.choices))}"
    elif option.placeholder:
        yield "-r"
    yield f"-d {quoted(option.description)}"


def fish_completion(tool):
    first = "__fish_use_subcommand"
    text = "# fish completion for touchstone2. Made by scripts/make_manual.py.\n\n"
    text += line(first, "-f")
    for option in tool.switches:
        text += line(first, *switch_arguments(option))
    for command in tool.commands:
        text += line(first, f"-a {command.name} -d {quoted(command.description)}")
    for command in tool.commands:
        chosen = f"__fish_seen_subcommand_from {command.name}"
        text += "\n"
        for option in command.switches:
            text += line(chosen, *switch_arguments(option))
        for option in command.positionals:
            if option.choices:
                text += line(chosen, f"-a {quoted(' '.join(option.choices))}")
    return text
