"""The tool's own description of its commands (touchstone2 --describe-commands)."""

import json
import re
import subprocess
from dataclasses import dataclass


@dataclass(frozen=True)
class Option:
    """An option or, when it is positional, an argument."""

    names: tuple  # ("-q", "--quiet"); of a positional its placeholder alone
    placeholder: str  # how its value is shown; "" for a flag
    positional: bool
    many: bool
    required: bool
    excludes: tuple  # names of other options
    description: str

    @property
    def choices(self):
        """The values that are words: v1 and v2 of "v1|v2", auto of "auto|DIGITS"."""
        words = self.placeholder.split("|")
        if len(words) == 1:
            return ()
        return tuple(word for word in words if not word.isupper())


@dataclass(frozen=True)
class Command:
    """A command, or the tool itself with its commands."""

    name: str
    description: str
    footer: str
    options: tuple
    version: str = ""
    commands: tuple = ()

    @property
    def positionals(self):
        return tuple(option for option in self.options if option.positional)

    @property
    def switches(self):
        return tuple(option for option in self.options if not option.positional)


def placeholder_of(value, positional_name):
    """"TEXT:{v1,v2}" is how the parser shows a value out of a set."""
    listed = re.search(r"\{(.*)\}", value)
    if listed:
        return listed.group(1).replace(",", "|")
    return positional_name or value


def option_from(entry):
    names = tuple(entry["names"].split(","))
    return Option(
        names=names,
        placeholder=placeholder_of(entry["value"], names[0] if entry["positional"] else ""),
        positional=entry["positional"],
        many=entry["many"],
        required=entry["required"],
        excludes=tuple(name for other in entry["excludes"] for name in other.split(",")),
        description=entry["description"],
    )


def command_from(entry):
    return Command(
        name=entry["name"],
        description=entry["description"],
        footer=entry["footer"],
        options=tuple(option_from(option) for option in entry["options"]),
        version=entry.get("version", ""),
        commands=tuple(command_from(command) for command in entry.get("commands", ())),
    )


def describe(tool):
    """What the executable `tool` says of itself."""
    done = subprocess.run([tool, "--describe-commands"], capture_output=True, check=True)
    return command_from(json.loads(done.stdout))
