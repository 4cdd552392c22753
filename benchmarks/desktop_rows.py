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
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests" / "desktop"))
from desktop import Desktop, wait_for  # noqa: E402  (its folder has just been added)

STARTS = 15
PROCESSES = 5
IDLE_SECONDS = 60
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

    def switches(self):
        """How often any of its threads was woken so far."""
        return sum(int(count)
                   for status in pathlib.Path(f"/proc/{self.pid}/task").glob("*/status")
                   for count in re.findall(r"ctxt_switches:\s+(\d+)", status.read_text()))

    def settle(self):
        """Returns when it has done nothing for half a second."""
        def is_still():
            before = self.switches()
            time.sleep(0.5)
            return self.switches() == before
        wait_for(is_still, "an idle program")

    def memory(self):
        """In kilobytes: what is its own, and its share of the rest."""
        rollup = pathlib.Path(f"/proc/{self.pid}/smaps_rollup").read_text()
        return int(re.search(r"^Pss:\s+(\d+)", rollup, re.MULTILINE)[1])

    def wakeups(self):
        before = self.switches()
        time.sleep(IDLE_SECONDS)
        return self.switches() - before

    def click(self):
        subprocess.run(["gdbus", "call", "--session", "-d",
                        f"org.kde.StatusNotifierItem-{self.pid}-1", "-o", "/StatusNotifierItem",
                        "-m", "org.kde.StatusNotifierItem.Activate", "600", "10"],
                       env=self.environment, stdout=subprocess.DEVNULL, check=True)


def start_rows(desktop, binaries):
    """The application until its item is there, and what it holds then."""
    took = {"torvi": [], "StatusItemFloor": []}
    memory = {"torvi": [], "StatusItemFloor": []}
    for _ in range(STARTS):
        for program in took:
            item = Item(desktop, binaries, program)
            item.settle()
            took[program].append(item.took_us)
            memory[program].append(item.memory())
            item.close()
    work, floor = map(statistics.median, took.values())
    yield "`torvi`, exec until its item is on the bus", work, floor, "at most 1.5 times", work / floor
    work, floor = map(statistics.median, memory.values())
    yield "… memory, popover never opened (MB)", work, floor, "at most 1.3 times", work / floor


def idle_rows(desktop, binaries):
    """A minute of nothing, with the popover closed and open; the count stands for milliseconds."""
    item = Item(desktop, binaries, "torvi")
    item.settle()
    closed = item.wakeups()
    item.click()
    wait_for(desktop.popover, "the popover")
    item.settle()
    opened = item.wakeups()
    item.close()
    title = f"`torvi`, idle for {IDLE_SECONDS} s, popover %s (wake-ups)"
    yield title % "never opened", closed * 1e3, None, "0", None
    yield title % "open", opened * 1e3, None, "0", None


def popover_rows(desktop, binaries):
    """The popover's frames with many projects."""
    def measured(count):
        done = subprocess.run([binaries / "PopoverBenchmark", str(count)],
                              env=desktop.environment, stdout=subprocess.PIPE, check=True)
        return json.loads(done.stdout)

    empty = measured(0)
    runs = [measured(MANY) for _ in range(PROCESSES)]

    def median(name, of="median"):
        return statistics.median(run[name][of] if of else run[name] for run in runs) * 1e3

    with_many = f"with {MANY:,} projects"
    yield f"popover, first in the process, {with_many}", median("first", None), None, "100 ms", None
    yield "… without projects", empty["first"] * 1e3, None, "100 ms", None
    yield f"popover, warm, {with_many}", median("warm"), None, "33 ms", None
    yield "a key in the filter: the model's work", median("filtering"), None, "1 ms", None
    yield "… worst key", median("filtering", "max"), None, "", None
    yield "a key in the filter, until its frame", median("typing"), None, "16.7 ms", None
    yield "… worst key", median("typing", "max"), None, "", None
    yield "a far jump, until its frame", median("jump"), None, "33 ms", None
    alive, on_screen = median("alive", None), median("onScreen", None)
    yield "delegates alive / on screen (count)", alive, on_screen, "at most 2 times", alive / on_screen
    beyond = median("memory", None) / 1e3 - empty["memory"]
    yield f"memory beyond the empty popover, {with_many} (MB)", beyond, None, "at most 12 MB", None


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
