# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Files written as gcloud writes them: in place, never by rename, some for the owner only."""

import os


def rewrite(path, text, faults=None):
    """Truncates the file and writes the text. A reader can see it empty in between."""
    with open(path, "w", encoding="utf-8", errors="surrogateescape", newline="") as file:
        if faults is not None:
            faults.strike("truncate")
        file.write(text)


def touch_private(path):
    """Creates the file empty, or sets the mode of the existing one: 0600 in both cases."""
    try:
        os.close(os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600))
    except FileExistsError:
        os.chmod(path, 0o600)


def rewrite_private(path, text, faults=None):
    """Like rewrite(), with mode 0600 set before anything is written."""
    touch_private(path)
    rewrite(path, text, faults)


def read_text(path):
    """Returns the file's text, or None when there is no such file."""
    try:
        with open(path, encoding="utf-8", newline="") as file:
            return file.read()
    except FileNotFoundError:
        return None
