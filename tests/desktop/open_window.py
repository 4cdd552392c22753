# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""An open window of Torvi: what shows in it, as assistive technology sees it, and the keyboard."""

from desktop import wait_for

try:
    import accessibility
except ImportError:
    accessibility = None

BUTTON = "push button"
LABEL = "label"
FIELD = "text"
SEGMENT = "radio button"
MENU_ENTRY = "menu item"


class OpenWindow:
    def __init__(self, desktop, torvi):
        self.desktop = desktop
        address = desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.root = wait_for(lambda: accessibility.connect(address, torvi.pid),
                             "the accessibility tree")

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

    def text(self, name):
        """What stands in the field of that name."""
        return self.look(lambda: self.find(name, FIELD).text)

    def wait_until_available(self, name):
        """Returns when that button can be pressed."""
        wait_for(lambda: "unavailable" not in self.look(lambda: self.find_anywhere(name)
                                                        .description), f"{name} to be available")

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
