# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The status item in Xfce's panel, which shows no label and tells where it was clicked."""

import os
import re
import shutil
import unittest

from desktop import DesktopTestCase, wait_for
from panel_tests import PanelTests

PANEL = """\
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array"><value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="icon-size" type="uint" value="22"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/><value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""


@unittest.skipUnless(shutil.which("xfce4-panel"), "not installed: xfce4-panel")
class XfcePanelTest(PanelTests, DesktopTestCase):
    DESKTOP = {"has_panel": False}
    PANEL_HEIGHT = 29

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = os.path.join(cls.desktop.environment["HOME"],
                              ".config/xfce4/xfconf/xfce-perchannel-xml")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "xfce4-panel.xml"), "w", encoding="utf-8") as file:
            file.write(PANEL)
        cls.desktop.start_helper("xfce4-panel", "--disable-wm-check")
        wait_for(cls.desktop.has_host, "the panel")

    def item(self):
        """(width, x, y) of the tray, the item's middle."""
        tree = self.desktop.run("xwininfo", "-root", "-tree")
        for match in re.finditer(r'"wrapper-2.0": .*?  (\d+)x(\d+)\+-?\d+\+-?\d+  \+(\d+)\+(\d+)\n',
                                 tree):
            width, height, x, y = map(int, match.groups())
            if width > 11:
                return width, x + width // 2, y + height // 2
        return None

    def test_it_is_as_wide_with_a_title_as_without(self):
        width, x, y = self.item_at_rest()

        self.desktop.click((x, y))

        self.wait_for_title()
        self.assertEqual(self.item_at_rest()[0], width)


if __name__ == "__main__":
    unittest.main()
