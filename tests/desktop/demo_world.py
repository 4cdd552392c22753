# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi on a desktop over the demo world, with its popover open and hands that use it."""

import json
import os
import subprocess
import sys
import unittest

from desktop import PATIENCE, DesktopTestCase, wait_for

try:
    import accessibility
except ImportError:
    accessibility = None

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                "standin"))

import demo  # noqa: E402  (its folder has just been added)

BUTTON = "push button"
LABEL = "label"
FIELD = "text"
SEGMENT = "radio button"
MENU_ENTRY = "menu item"

VIEWPORT = 714  # Points of the popover that scroll; below them is the footer,
FOOTER = {"Manager", "Quit", "Refresh", "Done"}
WHEEL = 60  # Points that a turn of the wheel scrolls.


class OpenPopover:
    """The popover on the screen: what shows in it, and a hand for the mouse and the keyboard."""

    def __init__(self, desktop, torvi):
        self.desktop = desktop
        address = desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.root = wait_for(lambda: accessibility.connect(address, torvi.pid),
                             "the accessibility tree")
        self.x, self.y = wait_for(desktop.popover, "the popover's place")

    # Looking

    def look(self, question):
        """The answer that question() gives of a tree that stays as it is meanwhile."""
        def ask():
            try:
                return (question(),)
            except accessibility.Gone:
                return None
        return wait_for(ask, "a tree at rest")[0]

    def find(self, name, role=BUTTON, *states):
        """What shows with that name in all of these states; None when there is nothing."""
        return self.look(lambda: next(
            (node for node in self.root.walk() if node.name == name and node.role == role
             and node.states.issuperset(states)), None))

    def find_anywhere(self, name, role=BUTTON):
        """The same, but also what is scrolled away."""
        return self.look(lambda: next(
            (node for node in self.root.walk(everything=True)
             if node.name == name and node.role == role and node.extents[2] > 0), None))

    def wait(self, name, role=BUTTON, *states):
        return wait_for(lambda: self.find(name, role, *states), f"{role} {name} {states}")

    def wait_gone(self, name, role=BUTTON):
        wait_for(lambda: self.find(name, role) is None, f"the end of {role} {name}")

    def rows(self):
        """The names of the rows that show, in their order."""
        return self.look(lambda: [node.name for node in self.root.walk()
                                  if " of " in node.description])

    def text(self, name):
        """What stands in the field of that name."""
        return self.look(lambda: self.find(name, FIELD).text)

    def wait_until_available(self, name):
        """Returns when that button can be pressed."""
        wait_for(lambda: "unavailable" not in self.look(lambda: self.find_anywhere(name)
                                                        .description), f"{name} to be available")

    def wait_until_loaded(self):
        self.wait_until_available("Refresh")
        wait_for(self.rows, "the projects")

    # The mouse

    def click(self, name, role=BUTTON, button=1):
        self.desktop.click(self.bring(name, role), button)

    def bring(self, name, role=BUTTON):
        """Turns the wheel until it can be clicked; where."""
        last = None

        def look():
            nonlocal last
            before, last = last, self._place(name, role)
            if last is None:
                return None
            if name in FOOTER or self.y + 12 < last[1] < self.y + VIEWPORT - 12:
                return last if last == before else None
            self._turn_wheel((last[1] - self.y - VIEWPORT // 2) // WHEEL)
            return None
        return wait_for(look, f"{role} {name} in view")

    def _place(self, name, role):
        node = self.find_anywhere(name, role)
        return self.look(lambda: node.middle) if node else None

    def _turn_wheel(self, turns):
        button = "5" if turns >= 0 else "4"
        # Over the edge of the contents, where nothing shows itself under the pointer.
        self.desktop.run("xdotool", "mousemove", str(self.x + 4), str(self.y + 300), "click", "--repeat",
                         str(max(1, abs(turns))), "--delay", "1", button, check=True)

    # The keyboard

    def focused(self):
        """The name of what the keyboard is on."""
        # What is around it says that it is focused too.
        names = self.look(lambda: [node.name for node in self.root.walk()
                                   if "focused" in node.states and node.role != "panel"])
        return names[-1] if names else None

    def type(self, text):
        self.desktop.run("xdotool", "type", "--delay", "1", text, check=True)

    def press(self, key):
        """Presses a key that moves the keyboard; returns what it is on then."""
        before = self.focused()
        self.desktop.key(key)
        return wait_for(lambda: self.focused() not in (None, before) and self.focused(),
                        f"another focus after {key} on {before}")

    def press_until(self, key, name):
        """Presses a key again and again, until the keyboard is on that."""
        seen = []
        while not seen or seen[-1] != name:
            seen.append(self.press(key))
            if len(seen) > 60:
                raise AssertionError(f"{key} never leads to {name}, but to {seen}")


@unittest.skipIf(accessibility is None, "not installed: python3-gi")
@unittest.skipUnless(os.path.exists("/usr/libexec/at-spi-bus-launcher"),
                     "not installed: at-spi2-core")
class DemoWorldTestCase(DesktopTestCase):
    """Tests with a world, a Torvi and an open popover of their own."""

    SIGN_IN_SECONDS = "0"

    def setUp(self):
        super().setUp()
        self.world = self.enterContext(demo.DemoWorld(pace="0"))
        self.journal = os.path.join(self.world.path, "journal")
        self.environment = {**self.world.environment(), "TORVI_DEMO_SIGN_IN_SECONDS":
                            self.SIGN_IN_SECONDS, "TORVI_STANDIN_JOURNAL": self.journal,
                            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.desktop.world = self.environment
        self.torvi = self.desktop.launch_torvi()
        self.popover = self.open()
        self.popover.wait_until_loaded()

    def open(self):
        self.desktop.click(self.desktop.item_position())
        self.wait_for_popover()
        return OpenPopover(self.desktop, self.torvi)

    def control(self, name, role=BUTTON):
        """A control, be it scrolled away or not."""
        return wait_for(lambda: self.popover.find_anywhere(name, role), f"{role} {name}")

    # What happened, by gcloud's own account

    def gcloud(self, *arguments):
        environment = {name: value for name, value in self.environment.items()
                       if name != "TORVI_STANDIN_JOURNAL"}
        done = subprocess.run([self.world.gcloud, *arguments, "--format=json"], env=environment,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=PATIENCE, check=True)
        return json.loads(done.stdout)

    def property(self, section, name):
        """A property in force; None when it is not set."""
        return self.gcloud("config", "list").get(section, {}).get(name)

    def wait_for_property(self, section, name, value):
        wait_for(lambda: self.property(section, name) == value, f"{section}/{name} = {value}")

    def credentials(self):
        """The application default credentials; empty while they are being written."""
        path = os.path.join(self.world.config, "application_default_credentials.json")
        try:
            with open(path, encoding="utf-8") as file:
                return json.load(file)
        except (FileNotFoundError, json.JSONDecodeError):
            return {}

    def preferences(self):
        path = os.path.join(self.world.home, ".config", "torvi", "preferences.ini")
        with open(path, encoding="utf-8") as file:
            return dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
