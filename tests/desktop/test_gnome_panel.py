# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The status item in GNOME Shell, which shows the title."""

import unittest

from desktop import wait_for
from gnome_shell import ITEM, GnomeTestCase
from panel_tests import PanelTests

TEXTS = """\
const texts = [];
const walk = actor => {
    if (actor instanceof imports.gi.St.Label && actor.mapped)
        texts.push(actor.text);
    actor.get_children().forEach(walk);
};
walk(item);
texts
"""


class GnomePanelTest(PanelTests, GnomeTestCase):
    PANEL_HEIGHT = 32
    SHELL = ["--x11", "--replace"]  # in the place of the window manager

    def test_its_title_is_shown_beside_the_icon(self):
        width, x, y = self.item_at_rest()

        self.desktop.click((x, y))

        self.wait_for_title()
        wait_for(lambda: self.evaluate(ITEM + TEXTS) == [" orchard-labs"], "the label")
        self.assertGreater(self.item_at_rest()[0], width)


if __name__ == "__main__":
    unittest.main()
