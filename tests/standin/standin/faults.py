# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Failures on demand, named by TORVI_STANDIN_FAULT; `tests/standin/README.md` lists them.

A fault is written [COMMAND=]KIND[:ARGUMENT][@MOMENT]; several are parted by commas.
"""

import os
import signal
import time

MOMENTS = ("start", "request", "truncate", "output", "end")

# Each kind with the moment at which it strikes; None: it changes how something else works.
DEFAULT_MOMENTS = {
    "hang": "start",
    "deaf": "start",
    "die": "output",
    "exit": "start",
    "flood": "start",
    "grandchild": "start",
    "half": None,
    "utf8": None,
    "split": None,
    "slow": None,
    "offline": None,
    "proxy-refused": None,
    "api": None,
    "expired": None,
    "refuse": None,
}


class Fault:
    """One fault. argument is a text, empty when none was given."""

    def __init__(self, kind, argument="", moment=None):
        if kind not in DEFAULT_MOMENTS or moment not in (None, *MOMENTS):
            raise SystemExit(f"stand-in: no such fault: {kind!r} at {moment!r}")
        self.kind = kind
        self.argument = argument
        self.moment = moment or DEFAULT_MOMENTS[kind]

    @classmethod
    def parse(cls, text):
        text, _, moment = text.partition("@")
        kind, _, argument = text.partition(":")
        return cls(kind, argument, moment or None)


class Faults:
    """The faults that concern one run; `command` is its words, as in "projects list"."""

    def __init__(self, setting, command):
        self._faults = []
        for item in filter(None, (part.strip() for part in setting.split(","))):
            scope, equals, fault = item.rpartition("=")
            if not equals or command.startswith(scope):
                self._faults.append(Fault.parse(fault))

    def get(self, kind):
        """Returns the argument of the fault of that kind, or None when it was not asked for."""
        for fault in self._faults:
            if fault.kind == kind:
                return fault.argument
        return None

    def strikes(self, moment):
        """True when a fault is due at that moment."""
        return any(fault.moment == moment for fault in self._faults)

    def strike(self, moment):
        """Does what is due at that moment; with most faults it does not return."""
        for fault in self._faults:
            if fault.moment == moment:
                _ACTIONS[fault.kind](fault.argument)


def _hang(_argument):
    while True:
        signal.pause()


def _deaf(_argument):
    """Says on standard error when signals have no effect any more."""
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(number, signal.SIG_IGN)
    write_all(2, b"deaf\n")
    _hang("")


def _die(argument):
    number = signal.Signals["SIG" + (argument or "SEGV")]
    if number not in (signal.SIGKILL, signal.SIGSTOP):
        signal.signal(number, signal.SIG_DFL)
    _without_core_dump()
    os.kill(os.getpid(), number)
    _hang("")


def _without_core_dump():
    import resource  # Only here: most runs never need it.

    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def _exit(argument):
    os._exit(int(argument or "3"))


def _flood(argument):
    """Writes that many megabytes, half of them to each stream."""
    line = b"flood " * 10 + b"\n"
    block = line * (65536 // len(line))
    left = int(float(argument or "50") * 1e6)
    while left > 0:
        for stream in (1, 2):
            write_all(stream, block)
            left -= len(block)


def _grandchild(argument):
    """Leaves a child that holds both pipes until their readers are gone, or that many seconds."""
    if os.fork() != 0:
        return
    import select  # Only here: most runs never need it.

    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, signal.SIG_DFL)
    poller = select.poll()
    open_streams = {1, 2}
    for stream in open_streams:
        poller.register(stream, 0)
    deadline = time.monotonic() + float(argument or "30")
    while open_streams and (left := deadline - time.monotonic()) > 0:
        for stream, _event in poller.poll(left * 1000):
            poller.unregister(stream)
            open_streams.discard(stream)
    os._exit(0)


_ACTIONS = {
    "hang": _hang,
    "deaf": _deaf,
    "die": _die,
    "exit": _exit,
    "flood": _flood,
    "grandchild": _grandchild,
}


def write_all(stream, data):
    """Writes the bytes to a file descriptor, however often the pipe is full."""
    view = memoryview(data)
    while view:
        view = view[os.write(stream, view):]
