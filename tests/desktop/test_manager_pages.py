# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The manager window's pages, used with keyboard and mouse; gcloud is asked what happened."""

import json
import os
import re
import subprocess
import sys
import unittest

from desktop import PATIENCE, DesktopTestCase, wait_for

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                "standin"))

import demo  # noqa: E402  (its folder has just been added)

PROJECT = "larkspur-checkout-prod"
HEIGHT = 450
BOTTOM_BAR = HEIGHT - 25


class ManagerPagesTest(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.world = self.enterContext(demo.DemoWorld(pace="0"))
        self.environment = {**self.world.environment(), "TORVI_DEMO_SIGN_IN_SECONDS": "0"}
        self.desktop.world = self.environment
        torvi = self.desktop.launch_torvi()
        wait_for(lambda: PROJECT in self.desktop.item_property(torvi, "ToolTip"), "the context")
        self.assertEqual(self.desktop.ask_torvi("--manager"), 0)
        self.window = wait_for(self.desktop.manager, "the manager window")
        wait_for(lambda: self.desktop.run("xdotool", "getactivewindow").strip() == self.window,
                 "the window in front")

    # Hands

    def keys(self, *names):
        for name in names:
            self.desktop.key(name)

    def type(self, text):
        self.desktop.run("xdotool", "type", "--delay", "1", text, check=True)

    def click(self, x, y):
        """At a place of the window."""
        printed = self.desktop.run("xwininfo", "-id", self.window, check=True)
        left, top = (int(re.search(rf"Absolute upper-left {axis}: +(-?\d+)", printed)[1])
                     for axis in "XY")
        self.desktop.click((left + x, top + y))

    # What happened

    def gcloud(self, *arguments):
        done = subprocess.run([self.world.gcloud, *arguments, "--format=json"],
                              env=self.environment, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=PATIENCE, check=True)
        return json.loads(done.stdout)

    def configurations(self):
        """Whether it is active, by the name of each configuration."""
        return {entry["name"]: entry["is_active"]
                for entry in self.gcloud("config", "configurations", "list")}

    def credentials(self):
        """The application default credentials; empty while they are being written."""
        path = os.path.join(self.world.config, "application_default_credentials.json")
        try:
            with open(path, encoding="utf-8") as file:
                return json.load(file)
        except (FileNotFoundError, json.JSONDecodeError):
            return {}

    def preferences(self):
        path = os.path.join(self.world.home, ".config", "torvi", "preferences.ini")
        with open(path, encoding="utf-8") as file:
            return file.read()

    # Configurations

    def test_the_keyboard_creates_a_configuration(self):
        self.keys("ctrl+1", "Tab", "space")
        self.type("fresh")
        self.keys("Return")

        wait_for(lambda: "fresh" in self.configurations(), "the configuration")

    def test_the_mouse_opens_the_sheet_and_escape_cancels_it(self):
        self.click(60, BOTTOM_BAR)
        self.type("never")
        self.keys("Escape")
        self.click(60, BOTTOM_BAR)
        self.type("fresh")
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

    def test_an_account_is_added_with_its_label(self):
        self.keys("ctrl+2")
        self.click(100, BOTTOM_BAR)
        self.type("robot@example.com")
        self.keys("Tab")
        self.type("Robot")
        self.keys("Return")

        wait_for(lambda: r"robot@example.com" in self.preferences(), "the account")
        self.assertRegex(self.preferences(), r'displayName\W+Robot\W')

    def test_a_saved_account_is_removed(self):
        self.assertIn(demo.DEPLOYER, self.preferences())
        self.keys("ctrl+2")

        def remove():
            # While the accounts are being listed, this leads to the chosen mode and chooses it.
            self.click(100, BOTTOM_BAR)
            self.keys("shift+Tab", "space")
            return demo.DEPLOYER not in self.preferences()
        wait_for(remove, "the account to be gone")

    # Default credentials

    def test_a_quota_project_is_typed_and_then_the_active_one_is_used(self):
        self.keys("ctrl+3", "Tab", "Tab")
        self.type("larkspur-cafe-fr")
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
        wait_for(lambda: "com.veldra.launchAtLogin=true" in self.preferences(), "the setting")
        self.keys("Tab", "Tab", "Up")

        wait_for(lambda: "com.veldra.refreshInterval=6" in self.preferences(), "the interval")

    def test_control_tab_goes_through_the_pages(self):
        self.keys("ctrl+Tab", "ctrl+Tab", "ctrl+Tab", "ctrl+shift+Tab", "ctrl+Tab", "space")

        wait_for(lambda: "com.veldra.launchAtLogin=true" in self.preferences(), "the setting")


if __name__ == "__main__":
    unittest.main()
