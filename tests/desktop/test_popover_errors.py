# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What the popover shows when gcloud fails: its longest message, which is a traceback."""

import os
import unittest

from demo_world import DemoWorldTestCase
from desktop import wait_for
from open_popover import VIEWPORT
from open_window import BUTTON

CAFE = "larkspur-cafe-fr"
ALERT = "alert message"
# Of the traceback that gcloud prints when it cannot read a file of properties.
FIRST_LINE = "gcloud command failed (exit 1): ERROR: gcloud failed to load."
LAST_LINES = "MissingSectionHeaderError"


class ErrorTestCase(DemoWorldTestCase):
    def break_gcloud(self):
        """Leaves a configuration that gcloud cannot read."""
        self.path = os.path.join(self.world.config, "configurations", "config_default")
        with open(self.path, encoding="utf-8") as file:
            self.whole = file.read()
        self.write("this is not ini\n" + self.whole)

    def write(self, text):
        with open(self.path, "w", encoding="utf-8") as file:
            file.write(text)

    def find_alert(self):
        return self.popover.look(lambda: next(
            (node for node in self.popover.root.walk() if node.role == ALERT), None))


class BannerTest(ErrorTestCase):
    def setUp(self):
        super().setUp()
        self.break_gcloud()
        self.popover.click(CAFE)
        self.alert = wait_for(self.find_alert, "the banner")
        self.desktop.picture("banner")

    def test_it_tells_everything(self):
        self.assertIn(FIRST_LINE, self.alert.name)
        self.assertIn(LAST_LINES, self.alert.name)
        self.assertGreater(self.alert.name.count("\n"), 44)

    def test_it_leaves_room_for_everything_else(self):
        _, top = self.desktop.popover()
        _, y, _, height = self.alert.extents

        self.assertLess(height, VIEWPORT / 3)
        self.assertLess(y + height, top + VIEWPORT)
        for button in ("Retry", "Dismiss"):
            _, button_y, _, button_height = self.popover.find(button).extents
            self.assertGreaterEqual(button_y, y)
            self.assertLessEqual(button_y + button_height, y + height)
        self.assertIn(CAFE, self.popover.rows())

    def test_the_wheel_brings_its_last_line(self):
        message = self.popover.find(self.alert.name, "text")
        self.assertGreater(self.bottom(message), self.bottom(self.alert))

        def turn():
            # Where it is now: what comes above it may still have moved it.
            self.desktop.run("xdotool", "mousemove", *map(str, self.alert.middle), "click",
                             "--repeat", "5", "--delay", "1", "5", check=True)
            return self.bottom(message) <= self.bottom(self.alert)
        wait_for(turn, "the last line")
        self.desktop.picture("banner-end")

    @staticmethod
    def bottom(node):
        _, y, _, height = node.extents
        return y + height

    def test_dismissing_it_ends_it(self):
        self.popover.click("Dismiss")

        wait_for(lambda: self.find_alert() is None, "the banner's end")

    def test_a_retry_ends_it(self):
        self.write(self.whole)

        self.popover.click("Retry")

        wait_for(lambda: self.find_alert() is None, "the banner's end")

    def test_the_keyboard_reaches_it(self):
        self.write(self.whole)

        self.popover.press_until("Tab", "Retry")
        self.assertEqual(self.popover.press("Tab"), "Dismiss")
        self.desktop.key("Return")

        wait_for(lambda: self.find_alert() is None, "the banner's end")

    def test_assistive_technology_dismisses_it(self):
        self.popover.find("Dismiss").act("Press")

        wait_for(lambda: self.find_alert() is None, "the banner's end")

    def test_assistive_technology_retries(self):
        self.write(self.whole)

        self.popover.find("Retry").act("Press")

        wait_for(lambda: self.find_alert() is None, "the banner's end")

    def test_it_does_not_hinder_other_work(self):
        self.write(self.whole)

        self.popover.click(CAFE)

        self.wait_for_property("core", "project", CAFE)
        self.popover.wait(CAFE, BUTTON, "selected")


class ImpersonationTest(ErrorTestCase):
    def test_an_address_that_fails_is_cleared_too(self):
        self.popover.click("SA email", "text")
        self.popover.type("a@b")
        self.popover.wait_until_available("Go")
        self.break_gcloud()
        self.popover.click("Go")

        wait_for(lambda: self.popover.find_anywhere("SA email", "text").text == "", "an empty field")
        self.popover.bring("Dismiss")
        self.assertIn(FIRST_LINE, self.find_alert().name)


if __name__ == "__main__":
    unittest.main()
