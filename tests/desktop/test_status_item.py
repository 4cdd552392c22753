# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The status item in a real panel."""

import os
import shutil
import signal
import unittest

from desktop import PROGRAM, DesktopTestCase, wait_for


class StatusItemTest(DesktopTestCase):
    def items(self):
        return self.desktop.watcher("RegisteredStatusNotifierItems")

    def test_it_comes_back_with_a_panel_that_was_killed(self):
        torvi = self.desktop.launch_torvi()

        self.desktop.stop_panel()
        self.assertTrue(torvi.is_running())
        self.desktop.start_panel()

        wait_for(lambda: str(torvi.pid) in self.items(), "the item in the new panel")
        self.desktop.click(self.desktop.item_position())
        self.wait_for_popover()

    def test_it_joins_a_panel_that_starts_later(self):
        self.desktop.stop_panel()
        self.desktop.panel = None
        torvi = self.desktop.launch_torvi()

        self.desktop.start_panel()

        wait_for(lambda: str(torvi.pid) in self.items(), "the item in the late panel")

    def test_it_leaves_the_panel_when_torvi_is_asked_to_end(self):
        torvi = self.desktop.launch_torvi()

        self.assertEqual(torvi.end(signal.SIGTERM), 0)

        wait_for(lambda: str(torvi.pid) not in self.items(), "the item's end")

    def test_it_ends_and_says_why_when_its_windows_are_not_installed(self):
        alone = shutil.copy(PROGRAM, os.path.join(self.desktop.folder, "torvi"))

        torvi = self.desktop.start_helper(alone, "--manager")

        self.assertEqual(torvi.wait(), 1)
        self.assertIn("The windows cannot be loaded from", torvi.output())

    def test_the_tool_tip_follows_gcloud_at_once_and_the_title_does_not(self):
        torvi = self.desktop.launch_torvi()
        wait_for(lambda: "orchard-labs" in self.desktop.item_property(torvi, "ToolTip"),
                 "the first context")

        self.desktop.write_configuration({"project": "other-project"})
        self.addCleanup(self.desktop.write_configuration,
                        {"project": "orchard-labs", "account": "ada@example.com"})

        wait_for(lambda: "Project: other-project" in self.desktop.item_property(torvi, "ToolTip"),
                 "the new context")
        self.assertEqual(self.desktop.item_property(torvi, "XAyatanaLabel"), "''")

    def test_a_live_title_follows_gcloud_at_once(self):
        torvi = self.desktop.launch_torvi("--live-title")
        wait_for(lambda: self.desktop.item_property(torvi, "XAyatanaLabel") == "' orchard-labs'",
                 "the first title")

        self.desktop.write_configuration({"project": "other-project",
                                          "impersonate_service_account": "x"})
        self.addCleanup(self.desktop.write_configuration,
                        {"project": "orchard-labs", "account": "ada@example.com"})

        wait_for(lambda: self.desktop.item_property(torvi, "XAyatanaLabel") == "' other-project'",
                 "the new title")


if __name__ == "__main__":
    unittest.main()
