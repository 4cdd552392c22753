# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The open popover: what shows in it, and a hand for the mouse and the keyboard."""

from desktop import wait_for
from open_window import BUTTON, OpenWindow

VIEWPORT = 714  # Points of the popover that scroll; below them is the footer,
FOOTER = {"Manager", "Quit", "Refresh", "Done"}
WHEEL = 60  # Points that a turn of the wheel scrolls.


class OpenPopover(OpenWindow):
    def __init__(self, desktop, torvi):
        super().__init__(desktop, torvi)
        self.x, self.y = wait_for(desktop.popover, "the popover's place")

    def rows(self):
        """The names of the rows that show, in their order."""
        return self.look(lambda: [node.name for node in self.root.walk()
                                  if " of " in node.description])

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
