# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The open manager window: what shows in it, and a hand for the mouse."""

from desktop import wait_for
from open_window import BUTTON, OpenWindow

TAB = "page tab"
ROW = "list item"  # also an entry of an open picker
PICKER = "combo box"


class OpenManager(OpenWindow):
    def __init__(self, desktop, torvi):
        super().__init__(desktop, torvi)
        self.window = wait_for(desktop.manager, "the manager window")
        wait_for(lambda: desktop.run("xdotool", "getactivewindow").strip() == self.window,
                 "the window in front")

    def rows(self):
        """The names of the rows that show, from top to bottom."""
        return self.look(lambda: [name for _, name in sorted(
            (node.extents[1], node.name) for node in self.root.walk() if node.role == ROW)])

    def action(self, row, name):
        """A button in that row; None when it has none of that name."""
        return self.look(lambda: next(
            (node for node in self.root.walk() if node.role == BUTTON and node.name == name
             and node.description.startswith(row)), None))

    def wait_for_action(self, row, name):
        return wait_for(lambda: self.action(row, name), f"{name} of {row}")

    # The mouse

    def click(self, name, role=BUTTON):
        self._click(lambda: self.find(name, role), f"{role} {name} at rest")

    def click_action(self, row, name):
        self._click(lambda: self.action(row, name), f"{name} of {row} at rest")

    def _click(self, find, what):
        """Clicks what is found, once it stays where it is."""
        last = None

        def look():
            nonlocal last
            node = find()
            before, last = last, self.look(lambda: node.middle) if node else None
            return last if last == before else None
        self.desktop.click(wait_for(look, what))
