# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The log file that every run of gcloud leaves behind, its first trace in the directory."""

import os
import time

_SECONDS_KEPT = 30 * 24 * 3600


class Log:
    """One open log file below `directory`/logs."""

    def __init__(self, directory):
        now = time.time()
        folder = os.path.join(directory, "logs", _format(now, "%Y.%m.%d"))
        os.makedirs(folder, exist_ok=True)
        name = os.path.join(folder, _format(now, "%H.%M.%S.") + f"{_fraction(now):06d}.log")
        self._file = open(name, "a", encoding="utf-8", errors="surrogateescape", buffering=1)
        _remove_old(os.path.join(directory, "logs"), now)

    def debug(self, message):
        self._line("DEBUG", "root", message)

    def shown(self, text):
        """Notes text that the user was shown."""
        self._line("INFO", "___FILE_ONLY___", text)

    def close(self):
        self._file.close()

    def _line(self, level, logger, message):
        now = time.time()
        stamp = _format(now, "%Y-%m-%d %H:%M:%S") + f",{_fraction(now) // 1000:03d}"
        self._file.write(f"{stamp} {level:<8} {logger:<15} {message}\n")


def _remove_old(logs, now):
    for entry in os.scandir(logs):
        if entry.is_dir() and entry.stat().st_mtime < now - _SECONDS_KEPT:
            import shutil  # Only here: most runs never need it.

            shutil.rmtree(entry.path, ignore_errors=True)


def _format(seconds, pattern):
    return time.strftime(pattern, time.localtime(seconds))


def _fraction(seconds):
    """Returns the microseconds within the second."""
    return int(seconds % 1 * 1e6)
