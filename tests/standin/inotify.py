# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The kernel's file events of a directory, for comparing the order in which files are written."""

import ctypes
import os
import struct

_NAMES = {
    0x2: "MODIFY",
    0x4: "ATTRIB",
    0x8: "CLOSE_WRITE",
    0x40: "MOVED_FROM",
    0x80: "MOVED_TO",
    0x100: "CREATE",
    0x200: "DELETE",
}
_IS_FOLDER = 0x40000000
_OVERFLOW = 0x4000
_HEADER = struct.Struct("iIII")


class Events:
    """The events in a directory and in the folders that it has now, from now on."""

    def __init__(self, directory):
        self._libc = ctypes.CDLL(None, use_errno=True)
        self._descriptor = self._libc.inotify_init1(os.O_NONBLOCK | os.O_CLOEXEC)
        if self._descriptor < 0:
            raise OSError(ctypes.get_errno(), "inotify_init1")
        self._prefixes = {}
        for folder, _, _ in os.walk(directory):
            prefix = os.path.relpath(folder, directory) + "/"
            watch = self._libc.inotify_add_watch(
                self._descriptor, os.fsencode(folder), ctypes.c_uint32(sum(_NAMES))
            )
            self._prefixes[watch] = "" if prefix == "./" else prefix

    def take(self):
        """Ends the watching. Returns what happened, as "KIND path"; folders end in a slash."""
        found = []
        try:
            while True:
                found.extend(self._decode(os.read(self._descriptor, 1 << 20)))
        except BlockingIOError:
            return found
        finally:
            os.close(self._descriptor)

    def _decode(self, data):
        position = 0
        while position < len(data):
            watch, mask, _, length = _HEADER.unpack_from(data, position)
            start = position + _HEADER.size
            name = data[start : start + length].rstrip(b"\0").decode()
            position = start + length
            if mask & _OVERFLOW:
                raise OverflowError("the kernel dropped events")
            kind = _NAMES.get(mask & ~_IS_FOLDER)
            if kind is not None:
                yield f"{kind} {self._prefixes[watch]}{name}{'/' * bool(mask & _IS_FOLDER)}"
