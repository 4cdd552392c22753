# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

"""The rows of the table that need a desktop: the status item, and the popover's frames."""

import json
import os
import pathlib
import re
import signal
import statistics
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests" / "desktop"))
from desktop import Desktop, wait_for  # noqa: E402  (its folder has just been added)
from table import Row, idle_row, milliseconds, timed, wait_until_still  # noqa: E402

STARTS = 15
PROCESSES = 5
MANY = 10_000


class Item:
    """A program with a status item, on a panel of its own."""

    def __init__(self, desktop, binaries, program):
        self.environment = desktop.environment
        self.timer = subprocess.Popen([binaries / "ItemTimer", binaries / program],
                                      env=desktop.environment, stdout=subprocess.PIPE, text=True)
        took, pid = self.timer.stdout.readline().split()
        self.took_us = float(took) * 1e3
        self.pid = int(pid)

    def close(self):
        os.kill(self.pid, signal.SIGTERM)
        self.timer.wait(30)

    def settle(self):
        """Returns when it has done nothing for half a second."""
        wait_until_still(self.pid, 0.5)

    def memory(self):
        """In kilobytes: what is its own, and its share of the rest."""
        rollup = pathlib.Path(f"/proc/{self.pid}/smaps_rollup").read_text()
        return int(re.search(r"^Pss:\s+(\d+)", rollup, re.MULTILINE)[1])

    def click(self):
        subprocess.run(["gdbus", "call", "--session", "-d",
                        f"org.kde.StatusNotifierItem-{self.pid}-1", "-o", "/StatusNotifierItem",
                        "-m", "org.kde.StatusNotifierItem.Activate", "600", "10"],
                       env=self.environment, stdout=subprocess.DEVNULL, check=True)


def megabytes(kilobytes):
    """As a text of three digits."""
    return f"{kilobytes / 1e3:.3g} MB"


def framed(title, took_ms, goal_ms):
    """The row of something that ends with a frame on the screen."""
    return Row(title, milliseconds(took_ms * 1e3), "–", "–", f"{goal_ms} ms", took_ms <= goal_ms)


def started(desktop, binaries):
    """The medians of the times until the item is there, and of the memory then: (work, floor)."""
    took = {"torvi": [], "StatusItemFloor": []}
    memory = {"torvi": [], "StatusItemFloor": []}
    for _ in range(STARTS):
        for program in took:
            item = Item(desktop, binaries, program)
            item.settle()
            took[program].append(item.took_us)
            memory[program].append(item.memory())
            item.close()
    return [[statistics.median(runs) for runs in of.values()] for of in (took, memory)]


def memory_row(title, work, floor):
    """The row of what stays in memory all day."""
    return Row(title, megabytes(work), megabytes(floor), f"{work / floor:.3g}",
               "at most 1.3 times", work / floor <= 1.3)


def start_rows(desktop, binaries):
    """The application until its item is there, and what it holds then: alone, and where another
    program of Qt's has its part of the libraries' memory."""
    took, memory = started(desktop, binaries)
    yield timed("`torvi`, exec until its item is on the bus", *took, "at most 1.5 times", 1.5)
    yield memory_row("… memory, popover never opened", *memory)
    elsewhere = Desktop(has_panel=False)
    try:
        other = Item(elsewhere, binaries, "StatusItemFloor")
        other.settle()
        _, memory = started(desktop, binaries)
        yield memory_row("… beside another program with the same libraries", *memory)
        other.close()
    finally:
        elsewhere.close()


def idle_rows(desktop, binaries):
    """A minute of nothing, with the popover closed and open."""
    item = Item(desktop, binaries, "torvi")
    yield idle_row("`torvi`, popover never opened", item.pid)
    item.click()
    wait_for(desktop.popover, "the popover")
    yield idle_row("`torvi`, popover open", item.pid)
    item.close()


def popover_rows(desktop, binaries):
    """The popover's frames: the first of a process, and with many projects those after it."""
    def printed(*command):
        return subprocess.run(command, env=desktop.environment, stdout=subprocess.PIPE,
                              check=True).stdout

    def measured(count):
        return json.loads(printed(binaries / "PopoverBenchmark", str(count)))

    def median(name, of="median"):
        return statistics.median(run[name][of] for run in runs)

    def first(count):
        return statistics.median(float(printed(binaries / "FirstPopover", str(count)))
                                 for _ in range(STARTS))

    empties = [measured(0) for _ in range(PROCESSES)]
    runs = [measured(MANY) for _ in range(PROCESSES)]
    projects = f"{MANY:,} projects"
    yield framed("popover, first in the process, no project", first(0), 100)
    yield framed(f"… {projects}", first(MANY), 100)
    yield framed(f"popover, warm, {projects}", median("warm"), 33)
    yield framed("… slowest", median("warm", "max"), 33)
    yield framed("a key in the filter, the model's work", median("filtering"), 1)
    yield framed("… slowest key", median("filtering", "max"), 1)
    yield framed("a key in the filter, until its frame", median("typing"), 16.7)
    yield framed("… slowest key", median("typing", "max"), 16.7)
    yield framed("a far jump, until its frame", median("jump"), 33)
    yield framed("… slowest jump", median("jump", "max"), 33)
    alive, on_screen = runs[0]["alive"], runs[0]["onScreen"]
    yield Row(f"delegates alive, against rows on screen, {projects}", str(alive), str(on_screen),
              f"{alive / on_screen:.3g}", "at most 2 times", alive <= 2 * on_screen)
    beyond = statistics.median(run["memory"] for run in runs) \
        - statistics.median(run["memory"] for run in empties)
    yield Row(f"memory beyond the empty popover, {projects}", megabytes(beyond), "–", "–",
              "at most 12 MB", beyond <= 12_000)


def rows(binaries):
    """All of them, on a private desktop."""
    desktop = Desktop(has_panel=False)
    try:
        desktop.environment["QT_QUICK_BACKEND"] = "software"
        yield from start_rows(desktop, binaries)
        yield from popover_rows(desktop, binaries)
        yield from idle_rows(desktop, binaries)
    finally:
        desktop.close()
