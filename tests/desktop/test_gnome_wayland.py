# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi in a Wayland session: GNOME Shell, in a window on the display."""

import glob
import os
import pathlib
import re
import shutil
import unittest

from desktop import wait_for
from gnome_shell import GnomeTestCase
from panel_tests import at_rest

try:
    import accessibility
except ImportError:
    accessibility = None

MISSING = [name for name in ("weston-terminal", "Xwayland", "wl-copy") if not shutil.which(name)]
if accessibility is None:
    MISSING.append("python3-gi")
WAYLAND = "torvi-test"

# Each window of Torvi: whether it came through XWayland, x, y, width, height.
WINDOWS = """\
global.get_window_actors().map(actor => actor.meta_window)
    .filter(window => window.title === 'Torvi').map(window => {
        const frame = window.get_frame_rect();
        return [window.get_client_type() === imports.gi.Meta.WindowClientType.X11,
                frame.x, frame.y, frame.width, frame.height];
    })
"""
FOCUS = "global.display.focus_window && global.display.focus_window.title"


class WaylandTestCase(GnomeTestCase):
    SHELL = ["--nested", "--wayland", "--wayland-display", WAYLAND]
    SIZE = (1200, 840)
    ENVIRONMENT = {"MUTTER_DEBUG_DUMMY_MODE_SPECS": "1200x840"}

    @classmethod
    def setUpClass(cls):
        if MISSING:
            raise unittest.SkipTest("not installed: " + ", ".join(MISSING))
        super().setUpClass()

    def setUp(self):
        super().setUp()
        wait_for(lambda: self.item() is None, "a panel without the last test's item")
        self.torvi = self.start()
        wait_for(lambda: str(self.torvi.pid)
                 in self.desktop.watcher("RegisteredStatusNotifierItems"), "the item in the panel")

    def start(self, *arguments):
        return self.desktop.start_torvi(*arguments, WAYLAND_DISPLAY=WAYLAND, **self.session())

    def session(self):
        """What tells Torvi where to show its windows."""
        raise NotImplementedError

    def toggle(self):
        self.assertEqual(self.start("--toggle").wait(), 0)

    def popover(self):
        """As in WINDOWS; None while there is none."""
        return next((window for window in self.evaluate(WINDOWS) if window[3:] == [400, 750]), None)

    def wait_for_popover(self):
        popover = wait_for(self.popover, "the popover")
        wait_for(lambda: self.evaluate(FOCUS) == "Torvi", "the popover with the keyboard")
        return popover

    def wait_for_no_popover(self):
        wait_for(lambda: self.popover() is None, "the popover's end")

    def open_another_window(self):
        """Returns when it has the keyboard."""
        other = self.desktop.start_helper("env", "WAYLAND_DISPLAY=" + WAYLAND, "weston-terminal")
        self.addCleanup(other.end)
        wait_for(lambda: self.evaluate(FOCUS) == "Wayland Terminal", "the other window")

    def click_item(self):
        """On the display, through the window that the shell runs in."""
        _, x, y = at_rest(self.item)
        tree = self.desktop.run("xwininfo", "-root", "-tree")
        left, top = map(int, re.search(r" %dx%d\+-?\d+\+-?\d+  \+(\d+)\+(\d+)" % self.SIZE,
                                       tree).groups())
        place = (str(left + x), str(top + y))
        self.desktop.run("xdotool", "mousemove", *place, check=True)
        wait_for(lambda: self.evaluate("global.get_pointer()")[:2] == [x, y], "the pointer")
        self.desktop.click(place)


class Cases:
    """What holds with and without XWayland."""

    def test_it_opens_on_demand_and_closes_on_demand(self):
        self.toggle()
        self.assertEqual(self.wait_for_popover()[0], self.IS_X11)
        self.desktop.picture(type(self).__name__)

        self.toggle()
        self.wait_for_no_popover()

    def test_a_click_on_the_item_opens_it_and_another_closes_it(self):
        self.click_item()
        self.wait_for_popover()
        # The title that comes with each opening moves the item.
        wait_for(lambda: self.desktop.item_property(self.torvi, "XAyatanaLabel")
                 == "' orchard-labs'", "the title")

        self.click_item()
        self.wait_for_no_popover()

    def test_it_closes_when_another_window_gets_the_keyboard(self):
        self.toggle()
        self.wait_for_popover()

        self.open_another_window()

        self.wait_for_no_popover()


class NativeTest(Cases, WaylandTestCase):
    IS_X11 = False
    ADDRESS = "https://accounts.google.com/o/oauth2/auth?client_id=1&state=a%2Fb"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.start_helper("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        wait_for(lambda: cls.desktop.has_owner("org.a11y.Bus"), "the accessibility bus")

    def session(self):
        return {"DISPLAY": "", "QT_QPA_PLATFORM": "wayland",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}

    def prepare_sign_in(self):
        """Lets gcloud wait for a line before it shows the address; where to write that."""
        path = os.path.join(self.desktop.folder, "show-address")
        os.mkfifo(path)
        gcloud = os.path.join(self.desktop.environment["HOME"], "google-cloud-sdk/bin/gcloud")
        with open(gcloud, encoding="utf-8") as file:
            self.addCleanup(pathlib.Path(gcloud).write_text, file.read())
        pathlib.Path(gcloud).write_text(
            f"#!/bin/sh\ncase \"$*\" in *login*) ;; *) echo '[]'; exit ;; esac\n"
            f"until read line < {path}; do :; done\necho '{self.ADDRESS}' >&2\n")
        return path

    @staticmethod
    def is_read(path):
        """Whether a program has that pipe open for reading."""
        try:
            os.close(os.open(path, os.O_WRONLY | os.O_NONBLOCK))
        except OSError:
            return False
        return True

    def press(self, name):
        address = self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        root = wait_for(lambda: accessibility.connect(address, self.torvi.pid), "the tree")

        def find():
            try:
                return next((node for node in root.walk() if node.name == name
                             and node.role == "push button"), None)
            except accessibility.Gone:
                return None
        wait_for(find, name).act("Press")

    def test_the_sign_in_address_is_on_the_clipboard_though_no_window_has_the_keyboard(self):
        show_address = self.prepare_sign_in()
        self.toggle()
        self.wait_for_popover()
        self.press("ADC Login")
        wait_for(lambda: self.is_read(show_address), "gcloud")
        self.toggle()
        self.wait_for_no_popover()
        pathlib.Path(show_address).write_text("\n", encoding="utf-8")

        paste = ("env", "WAYLAND_DISPLAY=" + WAYLAND, "wl-paste", "--no-newline")
        wait_for(lambda: self.desktop.run(*paste) == self.ADDRESS, "the address")


class XWaylandTest(Cases, WaylandTestCase):
    IS_X11 = True

    def session(self):
        display = re.search(r"Using public X11 display (:\d+)", self.shell.output())[1]
        authority = glob.glob(os.path.join(self.desktop.environment["XDG_RUNTIME_DIR"],
                                           ".mutter-Xwaylandauth.*"))[0]
        return {"DISPLAY": display, "XAUTHORITY": authority}

    def test_it_stands_under_the_item(self):
        self.click_item()

        self.wait_for_popover()
        wait_for(lambda: self.popover()[1:3] == [self.SIZE[0] - 400, 32], "its place")


if __name__ == "__main__":
    unittest.main()
