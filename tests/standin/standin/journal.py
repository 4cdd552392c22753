# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""A record of what a run did, for tests: the writes and the requests, one JSON object a line."""

import json
import os


class Journal:
    """Appends to the file; does nothing when `path` is empty."""

    def __init__(self, path):
        self._path = path

    def write(self, stream, data):
        self._add({"stream": stream, "bytes": data.decode("utf-8", "replace")})

    def request(self, **members):
        self._add({"request": members})

    def _add(self, entry):
        if not self._path:
            return
        line = json.dumps(entry).encode() + b"\n"
        file = os.open(self._path, os.O_WRONLY | os.O_APPEND | os.O_CREAT, 0o600)
        try:
            os.write(file, line)
        finally:
            os.close(file)
