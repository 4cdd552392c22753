# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Several starts in one session, and sessions that lack something."""

import os
import signal
import unittest

from desktop import DesktopTestCase, wait_for

NAME = "com.veldra.Torvi"


class SingleInstanceTest(DesktopTestCase):
    def test_a_second_start_opens_the_popover_of_the_first(self):
        first = self.desktop.launch_torvi()

        self.assertEqual(self.desktop.ask_torvi(), 0)

        self.wait_for_popover()
        self.assertTrue(first.is_running())
        self.assertEqual(self.desktop.ask_torvi(), 0)
        self.assertIsNotNone(self.desktop.popover())

    def test_toggle_opens_and_closes_the_popover_of_the_first(self):
        self.desktop.launch_torvi()

        self.assertEqual(self.desktop.ask_torvi("--toggle"), 0)
        self.wait_for_popover()

        self.assertEqual(self.desktop.ask_torvi("--toggle"), 0)
        self.wait_for_no_popover()

    def test_requests_need_no_display_of_their_own(self):
        self.desktop.launch_torvi()

        second = self.desktop.start_torvi("--toggle", DISPLAY="")

        self.assertEqual(second.wait(), 0)
        self.wait_for_popover()

    def test_quit_ends_the_first(self):
        first = self.desktop.launch_torvi()

        self.assertEqual(self.desktop.ask_torvi("--quit"), 0)

        self.assertEqual(first.wait(), 0)
        self.assertFalse(self.desktop.has_owner(NAME))

    def test_quit_with_nothing_running_is_done_already(self):
        self.assertEqual(self.desktop.ask_torvi("--quit"), 0)
        self.assertFalse(self.desktop.has_owner(NAME))

    def test_a_request_with_nothing_running_starts_torvi_and_is_carried_out(self):
        self.desktop.launch_torvi("--toggle")

        self.wait_for_popover()

    def test_a_killed_torvi_leaves_no_name_behind(self):
        self.desktop.launch_torvi().end(signal.SIGKILL)

        second = self.desktop.launch_torvi()

        self.assertTrue(second.is_running())

    def test_a_torvi_that_hangs_is_reported(self):
        first = self.desktop.launch_torvi()
        os.kill(first.pid, signal.SIGSTOP)
        self.addCleanup(os.kill, first.pid, signal.SIGCONT)

        second = self.desktop.start_torvi("--toggle")

        self.assertEqual(second.wait(), 1)
        self.assertIn("does not answer", second.output())

    def test_of_fifty_starts_at_once_one_stays(self):
        starts = [self.desktop.start_torvi() for _ in range(50)]

        wait_for(lambda: sum(start.is_running() for start in starts) == 1, "49 starts to end")

        codes = [start.process.poll() for start in starts]
        self.assertEqual(codes.count(0), 49)
        self.assertEqual(codes.count(None), 1)
        self.wait_for_popover()


class WithoutABusTest(DesktopTestCase):
    DESKTOP = {"has_panel": False}

    def test_the_manager_window_is_an_ordinary_program(self):
        torvi = self.desktop.start_torvi(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
        window = wait_for(self.desktop.manager, "the manager window")
        self.assertIn("no session bus", torvi.output())

        self.desktop.run("xdotool", "windowactivate", "--sync", window, check=True)
        self.desktop.key("alt+F4")

        self.assertEqual(torvi.wait(), 0)

    def test_a_request_says_why_it_fails(self):
        torvi = self.desktop.start_torvi("--quit",
                                         DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")

        self.assertEqual(torvi.wait(), 1)
        self.assertIn("no session bus", torvi.output())


class WithoutAPanelTest(DesktopTestCase):
    DESKTOP = {"has_panel": False}

    def test_it_says_once_how_it_is_reached(self):
        with self.desktop.calls("Notify") as notifications:
            torvi = self.desktop.launch_torvi()

            wait_for(lambda: "torvi --toggle" in torvi.output(), "the hint on standard error")
            self.settle(torvi)

            self.assertEqual(torvi.output().count("torvi --toggle"), 1)
            self.assertEqual(notifications.count(), 1)

        self.assertEqual(self.desktop.ask_torvi("--toggle"), 0)
        self.assertEqual(self.wait_for_popover(), (880, 0))
        self.desktop.picture("without-panel")


class WithoutADisplayTest(DesktopTestCase):
    DESKTOP = {"has_panel": False}

    def test_it_says_so(self):
        torvi = self.desktop.start_torvi(DISPLAY="")

        self.assertEqual(torvi.wait(), 1)
        self.assertIn("no display", torvi.output())


if __name__ == "__main__":
    unittest.main()
