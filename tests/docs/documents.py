# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What the documents show: their blocks of commands, with what these print, and of settings."""

import os
import re
import subprocess

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

PROMPT = "$ "


class Block:
    """Lines that stand together; `language` is empty for those that are merely indented."""

    def __init__(self, place, language):
        self.place = place
        self.language = language
        self.lines = []

    @property
    def text(self):
        return "\n".join(self.lines)

    def commands(self):
        """(command, what it prints or None) in their order."""
        has_prompts = any(line.startswith(PROMPT) for line in self.lines)
        found = []
        for line in re.sub(r"\\\n\s*", "", self.text).splitlines():
            if not has_prompts:
                found.append((line, None))
            elif line.startswith(PROMPT):
                found.append((line.removeprefix(PROMPT), ""))
            else:
                found[-1] = (found[-1][0], found[-1][1] + line + "\n")
        return [(command.strip(), printed or None) for command, printed in found
                if command.strip()]


def paths():
    """All documents, from the top of the sources; results that are measured are none."""
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "-co", "--exclude-standard", "*.md"],
                            capture_output=True, text=True, check=True).stdout.split()
    return [path for path in listed if path != "benchmarks/results.md"]


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def blocks(path, text):
    found = []
    fenced = None
    indented = None
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith("```"):
            if fenced is None:
                fenced = Block(f"{path}:{number}", line.removeprefix("```"))
                found.append(fenced)
            else:
                fenced = None
        elif fenced is not None:
            fenced.lines.append(line)
        elif line.startswith("    "):
            if indented is None:
                indented = Block(f"{path}:{number}", "")
                found.append(indented)
            indented.lines.append(line[4:])
        elif line.strip():
            indented = None
        elif indented is not None:
            indented.lines.append("")
    return found


def spans(text):
    """The code between single backquotes outside of blocks."""
    prose = re.sub(r"^```.*?^```$|^    .*$", "", text, flags=re.DOTALL | re.MULTILINE)
    return re.findall(r"`([^`\n]+)`", prose)


def within_settings(text):
    """The commands of ours that a program's settings hold."""
    return re.findall(r"\btorvi(?:ctl)? [a-z-][^\"')&#\n]*[a-z]", text)
