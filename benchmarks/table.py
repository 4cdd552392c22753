# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

"""What a line of the table is made of."""

import pathlib
import time
from typing import NamedTuple


IDLE_SECONDS = 60


class Row(NamedTuple):
    """One line of the table."""

    work: str
    measured: str
    floor: str
    ratio: str
    goal: str
    met: bool


def milliseconds(microseconds):
    """As a text of three digits."""
    return f"{float(f'{microseconds / 1e3:.3g}'):g} ms"


def timed(title, work, floor, goal, most=float("inf"), most_us=float("inf")):
    """The row of a work and its floor, both in microseconds."""
    return Row(title, milliseconds(work), milliseconds(floor), f"{work / floor:.3g}", goal,
               work / floor <= most and work < most_us)


def context_switches(pid):
    """How often each thread of the process has run, by their identifiers."""
    return {status.parent.name: sum(int(line.split()[1])
                                    for line in status.read_text().splitlines()
                                    if "ctxt_switches" in line)
            for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status")}


def wakeups(before, after):
    """How often any thread ran between two counts; one that ended ran once for that."""
    return sum(count - before.get(thread, 0) for thread, count in after.items()) \
        + len(before.keys() - after.keys())


def wait_until_still(pid, seconds):
    """Returns when no thread of the process has run for so long, or when that never comes."""
    before = context_switches(pid)
    for _ in range(20):
        time.sleep(seconds)
        if (now := context_switches(pid)) == before:
            return
        before = now


def idle_row(title, pid):
    """What a process does in a minute of nothing.

    It begins when what comes once has passed: half a minute after the last work, Qt drops caches
    and threads that it had kept for more.
    """
    wait_until_still(pid, 35)
    before = context_switches(pid)
    time.sleep(IDLE_SECONDS)
    count = wakeups(before, context_switches(pid))
    return Row(f"{title}, idle for {IDLE_SECONDS} s", f"{count} context switches", "0", "–",
               "no wake-up", count == 0)
