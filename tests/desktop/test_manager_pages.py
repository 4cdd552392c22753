# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The manager window's pages, used with keyboard and mouse; gcloud is asked what happened."""

import os
import re
import unittest

from demo_world import DemoTestCase, demo
from desktop import wait_for

PROJECT = "larkspur-checkout-prod"
HEIGHT = 450
BOTTOM_BAR = HEIGHT - 25


class ManagerPagesTest(DemoTestCase):
    def setUp(self):
        super().setUp()
        wait_for(lambda: PROJECT in self.desktop.item_property(self.torvi, "ToolTip"),
                 "the context")
        self.manager = self.open_manager()

    # Hands

    def keys(self, *names):
        for name in names:
            self.desktop.key(name)

    def click(self, x, y):
        """At a place of the window."""
        printed = self.desktop.run("xwininfo", "-id", self.manager.window, check=True)
        left, top = (int(re.search(rf"Absolute upper-left {axis}: +(-?\d+)", printed)[1])
                     for axis in "XY")
        self.desktop.click((left + x, top + y))

    # What happened

    def wait_for_setting(self, name, value):
        wait_for(lambda: self.preferences().get(f"com.veldra.{name}") == value, name)

    # Configurations

    def test_the_keyboard_creates_a_configuration(self):
        self.keys("ctrl+1", "Tab", "space")
        self.manager.type("fresh")
        self.keys("Return")

        wait_for(lambda: "fresh" in self.configurations(), "the configuration")

    def test_the_mouse_opens_the_sheet_and_escape_cancels_it(self):
        self.click(60, BOTTOM_BAR)
        self.manager.type("never")
        self.keys("Escape")
        self.click(60, BOTTOM_BAR)
        self.manager.type("fresh")
        self.keys("Return")

        wait_for(lambda: "fresh" in self.configurations(), "the configuration")
        self.assertNotIn("never", self.configurations())

    def test_the_keyboard_activates_a_configuration(self):
        before = self.configurations()
        self.assertTrue(before["default"])
        self.keys("ctrl+1", "Down", "Tab", "Return")

        chosen = list(before)[1]
        wait_for(lambda: self.configurations()[chosen], f"{chosen} to be active")

    def test_the_keyboard_deletes_a_configuration(self):
        last = list(self.configurations())[-1]
        self.keys("ctrl+1", "End", "Tab", "Tab", "space")

        wait_for(lambda: last not in self.configurations(), f"{last} to be gone")

    # Service accounts

    def accounts(self):
        """The saved ones, as they are stored."""
        return self.preferences()["com.veldra.serviceaccounts"]

    def test_an_account_is_added_with_its_label(self):
        self.keys("ctrl+2")
        self.click(100, BOTTOM_BAR)
        self.manager.type("robot@example.com")
        self.keys("Tab")
        self.manager.type("Robot")
        self.keys("Return")

        wait_for(lambda: "robot@example.com" in self.accounts(), "the account")
        self.assertRegex(self.accounts(), r'displayName\W+Robot\W')

    def test_a_saved_account_is_removed(self):
        self.assertIn(demo.DEPLOYER, self.accounts())
        self.keys("ctrl+2")

        def remove():
            # While the accounts are being listed, this leads to the chosen mode and chooses it.
            self.click(100, BOTTOM_BAR)
            self.keys("shift+Tab", "space")
            return demo.DEPLOYER not in self.accounts()
        wait_for(remove, "the account to be gone")

    # Default credentials

    def test_a_quota_project_is_typed_and_then_the_active_one_is_used(self):
        self.keys("ctrl+3", "Tab", "Tab")
        self.manager.type("larkspur-cafe-fr")
        self.keys("Return")
        wait_for(lambda: self.credentials().get("quota_project_id") == "larkspur-cafe-fr",
                 "the typed quota project")
        self.keys("shift+Tab", "space")

        wait_for(lambda: self.credentials().get("quota_project_id") == PROJECT,
                 "the active project as quota project")

    def test_a_sign_in_writes_new_credentials(self):
        path = os.path.join(self.world.config, "application_default_credentials.json")
        os.remove(path)
        self.keys("ctrl+3", "space")

        wait_for(lambda: self.credentials().get("type") == "authorized_user", "the credentials")

    # Settings

    def test_settings_are_stored_at_once(self):
        self.keys("ctrl+4", "space")
        self.wait_for_setting("launchAtLogin", "true")
        self.keys("Tab", "Tab", "Up")

        self.wait_for_setting("refreshInterval", "6")

    def test_control_tab_goes_through_the_pages(self):
        self.keys("ctrl+Tab", "ctrl+Tab", "ctrl+Tab", "ctrl+shift+Tab", "ctrl+Tab", "space")

        self.wait_for_setting("launchAtLogin", "true")


if __name__ == "__main__":
    unittest.main()
