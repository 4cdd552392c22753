# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi as assistive technology sees it: its tree on the accessibility bus.

Nothing is kept: each look asks Torvi anew.
"""

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
TEXT = "org.a11y.atspi.Text"
ROOT = "/org/a11y/atspi/accessible/root"
SCREEN = 0  # The coordinates of the whole screen.
STATES = {"checked": 4, "enabled": 8, "focusable": 11, "focused": 12, "selected": 23,
          "sensitive": 24, "showing": 25, "checkable": 41}
PATIENCE = 10_000  # Milliseconds after which a call gives up.


class Gone(Exception):
    """An object that went while one looked."""


class Node:
    """One object of the tree. Everything may raise Gone."""

    def __init__(self, bus, owner, path):
        self._bus = bus
        self._owner = owner
        self._path = path

    def _call(self, interface, method, arguments=None):
        try:
            return self._bus.call_sync(self._owner, self._path, interface, method, arguments, None,
                                       Gio.DBusCallFlags.NONE, PATIENCE, None).unpack()
        except GLib.Error as error:
            for gone in (Gio.DBusError.UNKNOWN_OBJECT, Gio.DBusError.UNKNOWN_INTERFACE):
                if error.matches(Gio.DBusError.quark(), gone):
                    raise Gone(self._path) from error
            raise

    def _property(self, interface, name):
        return self._call("org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (interface, name)))[0]

    @property
    def name(self):
        return self._property(ACCESSIBLE, "Name")

    @property
    def description(self):
        return self._property(ACCESSIBLE, "Description")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")[0]

    @property
    def states(self):
        low, high = self._call(ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    @property
    def text(self):
        """What stands in a field."""
        return self._call(TEXT, "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def extents(self):
        """(x, y, width, height) on the screen."""
        return self._call(COMPONENT, "GetExtents", GLib.Variant("(u)", (SCREEN,)))[0]

    @property
    def middle(self):
        x, y, width, height = self.extents
        return x + width // 2, y + height // 2

    @property
    def actions(self):
        return [name for name, _, _ in self._call(ACTION, "GetActions")[0]]

    def act(self, action):
        """Does what a user of assistive technology asks for."""
        done = self._call(ACTION, "DoAction",
                          GLib.Variant("(i)", (self.actions.index(action),)))[0]
        assert done, f"{self.name}: {action} was refused"

    def children(self):
        return [Node(self._bus, owner, path) for owner, path
                in self._call(ACCESSIBLE, "GetChildren")[0]]

    def walk(self, everything=False):
        """This object and all below it that shows, or `everything`, in their order."""
        yield self
        for child in self.children():
            if everything or "showing" in child.states:
                yield from child.walk(everything)


def connect(session_address, pid):
    """The tree's root of the program with that process id; None while it has none."""
    session = _bus(session_address)
    try:
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
                                    None, None, Gio.DBusCallFlags.NONE, PATIENCE, None).unpack()[0]
    finally:
        session.close_sync(None)
    bus = _bus(address)
    for owner in _ask(bus, "ListNames"):
        if owner.startswith(":") and _pid_of(bus, owner) == pid:
            return Node(bus, owner, ROOT)
    bus.close_sync(None)
    return None


def _bus(address):
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)


def _ask(bus, method, arguments=None):
    return bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", method, arguments,
                         None, Gio.DBusCallFlags.NONE, PATIENCE, None).unpack()[0]


def _pid_of(bus, owner):
    try:
        return _ask(bus, "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))
    except GLib.Error:  # gone meanwhile
        return None
