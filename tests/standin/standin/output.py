# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Standard output and standard error, written in the pieces in which gcloud writes them."""

import time

from .faults import write_all

STDOUT = 1
STDERR = 2

# gcloud's standard output is a text stream that passes a piece on once it exceeds this size.
PIECE = 8192

# The pause between two pieces of a split write: long enough for a reader to see them apart.
SPLIT_PAUSE = 0.02


class Output:
    """Writes with the faults of the run. What cannot be encoded is written as it came in."""

    def __init__(self, faults, journal):
        self._faults = faults
        self._journal = journal
        self._cut_off = False

    def out(self, text):
        """Writes to standard output, in pieces of whole lines when the text is long."""
        piece = ""
        for line in text.splitlines(keepends=True):
            piece += line
            if len(piece.encode("utf-8", "surrogateescape")) >= PIECE:
                self._write(STDOUT, piece)
                piece = ""
        if piece:
            self._write(STDOUT, piece)

    def err(self, text):
        """Writes to standard error, in one piece."""
        self._write(STDERR, text)

    def _write(self, stream, text):
        if self._cut_off:
            return
        data = text.encode("utf-8", "surrogateescape")
        if self._faults.strikes("output"):
            write_all(stream, data[: len(data) // 2])
            self._faults.strike("output")
        if self._faults.get("half") is not None:
            data = data[: len(data) // 2].rstrip(b"\n")
            self._cut_off = True
        if self._faults.get("utf8") is not None:
            middle = len(data) // 2
            data = data[:middle] + b"\xff\xfe\x80" + data[middle:]
        self._journal.write("stdout" if stream == STDOUT else "stderr", data)
        split = self._faults.get("split")
        if split is None:
            write_all(stream, data)
        else:
            _write_split(stream, data, int(split or "100"))


def _write_split(stream, data, size):
    for start in range(0, len(data), size):
        if start > 0:
            time.sleep(SPLIT_PAUSE)
        write_all(stream, data[start : start + size])
