# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The manager window and the task list."""

import unittest

from desktop import DesktopTestCase, wait_for


class ManagerWindowTest(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.torvi = self.desktop.launch_torvi()

    def open(self):
        self.assertEqual(self.desktop.ask_torvi("--manager"), 0)
        return wait_for(self.desktop.manager, "the manager window")

    def test_it_is_an_ordinary_window_in_the_task_list(self):
        window = self.open()

        self.assertFalse({"SKIP_TASKBAR", "SKIP_PAGER"} & self.desktop.states(window))
        self.assertIn("_NET_WM_WINDOW_TYPE_NORMAL",
                      self.desktop.run("xprop", "-id", window, "_NET_WM_WINDOW_TYPE"))
        self.desktop.picture("manager")

    def test_it_closes_the_popover(self):
        self.desktop.click(self.desktop.item_position())
        self.wait_for_popover()

        self.open()

        self.wait_for_no_popover()

    def test_opening_it_twice_shows_one_window_in_front(self):
        window = self.open()
        self.desktop.run("xdotool", "windowminimize", window, check=True)
        wait_for(lambda: "HIDDEN" in self.desktop.states(window), "a minimised window")

        self.assertEqual(self.desktop.ask_torvi("--manager"), 0)

        wait_for(lambda: self.desktop.run("xdotool", "getactivewindow").strip() == window,
                 "the window in front")
        self.assertNotIn("HIDDEN", self.desktop.states(window))
        self.assertEqual(list(self.desktop.windows()), [window])

    def test_after_a_closing_it_opens_anew_and_torvi_goes_on(self):
        self.ask_to_close(self.open())
        wait_for(lambda: not self.desktop.windows(), "the window's end")
        self.assertTrue(self.torvi.is_running())

        window = self.open()

        self.assertFalse({"SKIP_TASKBAR"} & self.desktop.states(window))

    def test_a_press_in_it_closes_the_popover(self):
        self.open()
        self.assertEqual(self.desktop.ask_torvi("--toggle"), 0)
        self.wait_for_popover()
        _, _, x, y = next(geometry for geometry in self.desktop.windows().values()
                          if geometry[:2] == (600, 450))

        self.desktop.click((x + 20, y + 440))

        self.wait_for_no_popover()

    def ask_to_close(self, window):
        """As the button in its frame does."""
        self.desktop.run("xdotool", "windowactivate", "--sync", window, check=True)
        self.desktop.key("alt+F4")


if __name__ == "__main__":
    unittest.main()
