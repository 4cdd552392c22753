# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""How outputs and files look to compare.py: without what differs from run to run."""

import json
import os
import re
import sqlite3

from harness import snapshot


def output(text):
    """Returns the text; of JSON only what is set, since versions of gcloud know more or less."""
    if re.fullmatch(r"[-\w]+\.[-\w]+\.[-\w]+\n", text):
        return "IDENTITY TOKEN"
    try:
        return json.dumps(_without_unset(json.loads(text)), indent=1, ensure_ascii=False)
    except json.JSONDecodeError:
        return text


def _without_unset(value):
    if isinstance(value, list):
        return [_without_unset(element) for element in value]
    if isinstance(value, dict):
        kept = {key: _without_unset(element) for key, element in value.items()}
        return {key: element for key, element in kept.items() if element not in (None, {})}
    return value


def text(text, path):
    """Returns the text without what differs from run to run."""
    for pattern, replacement in (
        (re.escape(path), "SCRATCH"),
        (r"client_id=[-.\w]+", "client_id=ID"),
        (r"state=\w+", "state=STATE"),
        (r"code_challenge=[-\w]+", "code_challenge=CHALLENGE"),
        (r"localhost%3A\d+", "localhost%3A8085"),
        (r"at 0x[0-9a-f]+", "at 0x"),
        (r"missing fields [\w, ]+", "missing fields"),
    ):
        text = re.sub(pattern, replacement, text)
    return text


def logs(directory):
    return [path for path in snapshot(directory) if path.startswith("logs/") and path[-1] != "/"]


def files(directory):
    """Returns {path: how it looks} of everything but logs and what depends on the time only."""
    looks = {}
    for path, facts in snapshot(directory).items():
        if path.startswith("logs/") or path in ("gce", ".last_survey_prompt.yaml"):
            continue
        looks[path] = f"mode {facts['mode']:o}\n{_content(directory, path)}" if facts else "folder"
    return looks


def _content(directory, path):
    full = os.path.join(directory, path)
    if path.endswith(".db"):
        return _database(full)
    with open(full, encoding="utf-8") as file:
        text = file.read()
    if path.endswith(".json"):
        text = re.sub(r'"(client_id|client_secret|refresh_token)": "[^"]*"', r'"\1": "…"', text)
    return text


def _database(path):
    """Returns the tables with the keys of their rows."""
    with sqlite3.connect(f"file:{path}?mode=ro", uri=True) as database:
        tables = database.execute("SELECT name, sql FROM sqlite_master WHERE type = 'table'")
        return "\n".join(
            f"{sql}: {_keys(database.execute(f'SELECT * FROM {name}'))}"
            for name, sql in tables.fetchall()
        )


def _keys(rows):
    """Returns the first column, sorted. Tokens of ADC files have the hash of a secret there."""
    return sorted(re.sub("^[0-9a-f]{64}$", "HASH", row[0]) for row in rows)
