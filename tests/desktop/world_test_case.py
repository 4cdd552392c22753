# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi on a desktop over a world with a gcloud, which is asked what happened."""

import json
import os
import subprocess
import unittest

from desktop import PATIENCE, DesktopTestCase, wait_for
from open_manager import OpenManager
from open_popover import OpenPopover
from open_window import accessibility


@unittest.skipIf(accessibility is None, "not installed: python3-gi")
@unittest.skipUnless(os.path.exists("/usr/libexec/at-spi-bus-launcher"),
                     "not installed: at-spi2-core")
class WorldTestCase(DesktopTestCase):
    """Tests with a world and a Torvi of their own.

    A world has the folders `path`, `home` and `config`, and the path of its `gcloud`.
    """

    def launch(self, world, environment):
        """Starts Torvi as that world's user would."""
        self.world = world
        self.environment = {**environment, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.desktop.world = self.environment
        self.torvi = self.desktop.launch_torvi()

    def open(self):
        """The popover, opened by a click on the item."""
        self.desktop.click(self.desktop.item_position())
        self.wait_for_popover()
        return OpenPopover(self.desktop, self.torvi)

    def open_manager(self):
        """The manager window, in front."""
        self.assertEqual(self.desktop.ask_torvi("--manager"), 0)
        return OpenManager(self.desktop, self.torvi)

    # What happened, by gcloud's own account

    def ask_gcloud(self, *arguments):
        """What it prints, without the end of the last line."""
        environment = {name: value for name, value in self.environment.items()
                       if name != "TORVI_STANDIN_JOURNAL"}
        return subprocess.run([self.world.gcloud, *arguments], env=environment,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=PATIENCE, check=True).stdout.rstrip("\n")

    def gcloud(self, *arguments):
        return json.loads(self.ask_gcloud(*arguments, "--format=json"))

    def property(self, section, name):
        """A property in force; None when it is not set."""
        return self.gcloud("config", "list").get(section, {}).get(name)

    def wait_for_property(self, section, name, value):
        wait_for(lambda: self.property(section, name) == value, f"{section}/{name} = {value}")

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
        path = os.path.join(self.environment["XDG_CONFIG_HOME"], "torvi", "preferences.ini")
        with open(path, encoding="utf-8") as file:
            return dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
