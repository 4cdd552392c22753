# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

"""What a line of the table is made of."""

import pathlib
from typing import NamedTuple


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
    """How often any thread of the process has run."""
    return sum(int(line.split()[1])
               for status in pathlib.Path(f"/proc/{pid}/task").glob("*/status")
               for line in status.read_text().splitlines() if "ctxt_switches" in line)
