# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What `torvi --doctor` tells of a desktop, from outside."""

import re
import unittest

from desktop import DesktopTestCase


class DoctorTestCase(DesktopTestCase):
    def examine(self, **environment):
        """The rows that it prints, by their labels."""
        doctor = self.desktop.start_torvi("--doctor", **environment)
        doctor.wait()
        return dict(re.split(r"  +", line, maxsplit=1) for line in doctor.output().splitlines()
                    if re.match(r"\w.*  ", line))


class DoctorTest(DoctorTestCase):
    def test_it_tells_of_the_panel_and_of_the_session(self):
        rows = self.examine(XDG_CURRENT_DESKTOP="MATE")

        self.assertRegex(rows["torvi"], r"^\d+\.\d+\.\d+$")
        self.assertEqual(rows["gcloud"], "~/google-cloud-sdk/bin/gcloud")
        self.assertEqual(rows["Torvi"], "is not running")
        self.assertEqual(rows["Session"], "MATE, X11")
        self.assertEqual(rows["Panel"], "MATE, with the title beside the icon")
        self.assertEqual(rows["Clicks elsewhere"], "told by the X server")
        self.assertEqual(rows["Clipboard"], "always to be had")

    def test_it_tells_nothing_private(self):
        doctor = self.desktop.start_torvi("--doctor", CLOUDSDK_CORE_PROJECT="orchard-labs")

        self.assertEqual(doctor.wait(), 0)

        self.assertIn("CLOUDSDK_CORE_PROJECT", doctor.output())
        self.assertNotIn("orchard-labs", doctor.output())
        self.assertNotIn("ada@", doctor.output())

    def test_it_leaves_the_torvi_that_runs_alone(self):
        torvi = self.desktop.launch_torvi()

        rows = self.examine()

        self.assertEqual(rows["Torvi"], "is running")
        self.settle(torvi)
        self.assertIsNone(self.desktop.popover())

    def test_it_needs_no_display(self):
        rows = self.examine(DISPLAY="")

        self.assertEqual(rows["Session"], "no display")
        self.assertNotIn("Clipboard", rows)


class DoctorWithoutAPanelTest(DoctorTestCase):
    DESKTOP = {"has_panel": False}

    def test_it_tells_what_to_do(self):
        self.assertIn("torvi --toggle", self.examine()["Panel"])

    def test_without_a_bus_it_says_so(self):
        rows = self.examine(DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")

        self.assertIn("no session bus", rows["Panel"])


if __name__ == "__main__":
    unittest.main()
