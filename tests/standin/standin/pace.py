# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""How fast the stand-in plays. 1 is the recorded pace of gcloud on a warm disk, 0 no waiting."""

import time

# Seconds at pace 1, medians of the recordings.
STARTING = 0.35
REQUEST = 0.05
ENDING = 0.08
RETRIES = 29.0  # Five tries of a request, with the pauses between them.


class Pace:
    """Waits where gcloud takes time. `slow`: seconds for each request, whatever the pace."""

    def __init__(self, factor, slow=None):
        self._factor = factor
        self._slow = slow

    def starting(self):
        self._wait(STARTING)

    def request(self):
        if self._slow is not None:
            time.sleep(self._slow)
        else:
            self._wait(REQUEST)

    def retries(self, seconds=None):
        """The whole time of five failing tries; `seconds` says how long, whatever the pace."""
        if seconds is not None:
            time.sleep(seconds)
        else:
            self._wait(RETRIES)

    def ending(self):
        self._wait(ENDING)

    def _wait(self, seconds):
        if self._factor > 0:
            time.sleep(seconds * self._factor)
