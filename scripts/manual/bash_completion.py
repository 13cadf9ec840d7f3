"""Completion for bash. Where the function offers nothing, bash offers files."""

HEAD = """\
# bash completion for touchstone2. Made by scripts/make_manual.py.

_touchstone2() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command="" words=""
    # bash takes the "=" of --to=v1 for a word of its own.
    if [ "$current" = "=" ]; then
        current=""
    elif [ "$previous" = "=" ] && [ "$COMP_CWORD" -gt 1 ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    if [ "$COMP_CWORD" -gt 1 ]; then
        command=${COMP_WORDS[1]}
    fi
    case "$command $previous" in
"""

MIDDLE = """\
        *)
            case "$command $current" in
"""

TAIL = """\
            esac
            ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o bashdefault -o default -F _touchstone2 touchstone2
"""


def names_of(options):
    return [name for option in options for name in option.names]


def arm(indent, pattern, words):
    return f'{" " * indent}{pattern}) words="{" ".join(words)}" ;;\n'


def value_arms(command):
    """What follows an option."""
    for option in command.switches:
        if option.choices:
            pattern = " | ".join(f'"{command.name} {name}"' for name in option.names)
            yield arm(8, pattern, option.choices)


def word_arms(command):
    """What else may stand behind the command."""
    yield arm(16, f'"{command.name} -"*', names_of(command.switches))
    choices = [word for option in command.positionals for word in option.choices]
    if choices:
        yield arm(16, f'"{command.name} "*', choices)


def bash_completion(tool):
    first_words = [command.name for command in tool.commands] + names_of(tool.switches)
    text = HEAD
    for command in tool.commands:
        text += "".join(value_arms(command))
    text += MIDDLE
    text += arm(16, '" "*', first_words)
    for command in tool.commands:
        text += "".join(word_arms(command))
    return text + TAIL
