# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""GNOME Shell with the extension for status items, and what it tells of itself."""

import importlib.util
import json
import os
import re
import shutil
import unittest

from desktop import DesktopTestCase, wait_for

EXTENSION = "ubuntu-appindicators@ubuntu.com"
MISSING = [name for name, is_there in {
    "gnome-shell": shutil.which("gnome-shell"),
    "gnome-shell-extension-appindicator":
        os.path.isdir("/usr/share/gnome-shell/extensions/" + EXTENSION),
    "python3-dbusmock": importlib.util.find_spec("dbusmock"),
}.items() if not is_there]

SETTINGS = f"""\
[org/gnome/shell]
enabled-extensions=['{EXTENSION}']
welcome-dialog-last-shown-version='99'
"""

# Finds the item, or null.
ITEM = """\
const found = Object.entries(Main.panel.statusArea).find(([name]) => name.startsWith('appindicator'));
const item = found && found[1].mapped && found[1].has_allocation() ? found[1] : null;
"""


class GnomeTestCase(DesktopTestCase):
    """Tests that share a GNOME Shell."""

    DESKTOP = {"has_panel": False}
    SHELL = []  # the options that it starts with
    ENVIRONMENT = {}

    @classmethod
    def setUpClass(cls):
        if MISSING:
            raise unittest.SkipTest("not installed: " + ", ".join(MISSING))
        super().setUpClass()
        cls.desktop.environment.update(XDG_CURRENT_DESKTOP="GNOME", **cls.ENVIRONMENT)
        cls.start_system_bus()
        keyfile = os.path.join(cls.desktop.environment["HOME"],
                               ".config/glib-2.0/settings/keyfile")
        with open(keyfile, "w", encoding="utf-8") as file:
            file.write(SETTINGS)
        # It may be asked where it shows things.
        cls.shell = cls.desktop.start_helper("gnome-shell", "--sm-disable", "--unsafe-mode",
                                             *cls.SHELL)
        wait_for(cls.desktop.has_host, "the panel")
        wait_for(cls.is_overview_closed, "the end of the overview that it starts with")

    @classmethod
    def start_system_bus(cls):
        """A private one with a log-in service, without which GNOME Shell does not start."""
        address = os.path.join(cls.desktop.folder, "system-bus")
        cls.desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + address
        cls.desktop.start_helper("dbus-daemon", "--session", "--nofork", "--nopidfile",
                                 "--address=unix:path=" + address)
        wait_for(lambda: os.path.exists(address), "the system bus")
        cls.desktop.start_helper("/usr/bin/python3", "-m", "dbusmock", "--system", "--template",
                                 "logind")
        wait_for(lambda: "true" in cls.desktop.run(
            "gdbus", "call", "--system", "-d", "org.freedesktop.DBus", "-o", "/", "-m",
            "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.login1"), "the log-in service")

    @classmethod
    def evaluate(cls, script):
        """What a script in the shell comes to; None when it fails."""
        printed = cls.desktop.run("gdbus", "call", "--session", "-d", "org.gnome.Shell", "-o",
                                  "/org/gnome/Shell", "-m", "org.gnome.Shell.Eval", script)
        match = re.match(r"\(true, '(.+)'\)\n$", printed)
        return json.loads(match[1]) if match else None

    @classmethod
    def is_overview_closed(cls):
        return cls.evaluate("if (!Main.layoutManager._startingUp) Main.overview.hide(); "
                            "!Main.layoutManager._startingUp && !Main.overview.visible")

    def item(self):
        """(width, x, y) of the item in the panel, of its middle; None while there is none."""
        place = self.evaluate(ITEM + "item && [...item.get_transformed_position(), item.width, "
                                     "item.height].map(Math.round)")
        if not place:
            return None
        x, y, width, height = place
        return width, x + width // 2, y + height // 2
