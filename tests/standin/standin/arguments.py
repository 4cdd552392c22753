# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The command lines that the stand-in understands, and what gcloud says of all others."""

from .catalogue import COMMANDS, shown
from .errors import UsageError

_ANYWHERE = {"--quiet": False, "-q": False, "--format": True}


def find(argv):
    """Returns the command whose words the arguments begin with, or None."""
    for command in COMMANDS:
        words = command.words.split()
        if argv[: len(words)] == words:
            return command
    return None


def parse(command, argv):
    """Returns {name: value} of the command's positionals and flags; absent flags are None.

    Raises UsageError for what the command does not understand.
    """
    flags, positionals = _split(command, argv[len(command.words.split()) :])
    values = {flag: flags.get(flag) for flag in command.flags}
    for name in command.positionals:
        if not positionals:
            raise UsageError(
                command.name, f"argument {shown(name)}: Must be specified.\n{_advice(command)}"
            )
        if name.endswith("S"):
            values[name], positionals = positionals, []
        else:
            values[name] = positionals.pop(0)
    if positionals:
        raise _unrecognized(command, positionals)
    return values


def _advice(command):
    return (
        f"{command.synopsis}\n\nFor detailed information on this command and its flags, run:\n"
        f"  gcloud {command.words} --help"
    )


def _unrecognized(command, words):
    return UsageError(
        command.name,
        f"unrecognized arguments: {' '.join(words)} \n\n"
        "To search the help text of gcloud commands, run:\n  gcloud help -- SEARCH_TERMS",
    )


def _split(command, words):
    """Returns the flags with their values and what is left; all after "--" is no flag."""
    takes_value = {**_ANYWHERE, **dict.fromkeys(command.flags, True)}
    flags, positionals, unknown = {}, [], []
    rest = iter(words)
    for word in rest:
        name, equals, value = word.partition("=")
        if word == "--":
            positionals.extend(rest)
        elif not word.startswith("-") or word == "-":
            positionals.append(word)
        elif name not in takes_value:
            unknown.append(word)
        elif not takes_value[name]:
            flags[name] = ""
        elif equals:
            flags[name] = value
        else:
            flags[name] = next(rest, None)
            if flags[name] is None:
                raise UsageError(
                    command.name, f"argument {name}: expected one argument\n{_advice(command)}"
                )
    if unknown:
        raise _unrecognized(command, unknown)
    return flags, positionals
