# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi on a desktop over the demo world, with its popover open and hands that use it."""

import os
import sys

from desktop import wait_for
from open_window import BUTTON
from world_test_case import WorldTestCase

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                "standin"))

import demo  # noqa: E402  (its folder has just been added)


class DemoTestCase(WorldTestCase):
    """Tests with a demo world and a Torvi of their own."""

    SIGN_IN_SECONDS = "0"

    def setUp(self):
        super().setUp()
        world = self.enterContext(demo.DemoWorld(pace="0"))
        self.journal = os.path.join(world.path, "journal")
        self.launch(world, {**world.environment(),
                            "TORVI_DEMO_SIGN_IN_SECONDS": self.SIGN_IN_SECONDS,
                            "TORVI_STANDIN_JOURNAL": self.journal})

class DemoWorldTestCase(DemoTestCase):
    """The same with an open popover."""

    def setUp(self):
        super().setUp()
        self.popover = self.open()
        self.popover.wait_until_loaded()

    def control(self, name, role=BUTTON):
        """A control, be it scrolled away or not."""
        return wait_for(lambda: self.popover.find_anywhere(name, role), f"{role} {name}")
