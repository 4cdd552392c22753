# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The popover, as the user opens and closes it by way of a real panel."""

import unittest

from desktop import DesktopTestCase, wait_for

ELSEWHERE = (300, 600)


class PopoverTest(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.torvi = self.desktop.launch_torvi()

    def click_item(self):
        self.desktop.click(self.desktop.item_position())

    def open(self):
        self.click_item()
        return self.wait_for_popover()

    def test_a_click_on_the_item_opens_the_popover_under_it(self):
        item = self.desktop.item_position()

        x, y = self.open()

        self.assertEqual(x, min(item[0] - 200, 1280 - 400))
        self.assertEqual(y, 28)
        self.desktop.picture("popover")

    def test_a_click_elsewhere_closes_it(self):
        self.open()

        self.desktop.click(ELSEWHERE)

        self.wait_for_no_popover()

    def test_a_right_click_elsewhere_closes_it(self):
        self.open()

        self.desktop.click(ELSEWHERE, button=3)

        self.wait_for_no_popover()

    def test_a_middle_click_elsewhere_leaves_it_open(self):
        self.open()

        self.desktop.click(ELSEWHERE, button=2)
        self.desktop.key("shift")  # comes after the click
        self.settle(self.torvi)

        self.assertIsNotNone(self.desktop.popover())

    def test_a_click_inside_leaves_it_open(self):
        x, y = self.open()

        self.desktop.click((x + 200, y + 740))
        self.settle(self.torvi)

        self.assertIsNotNone(self.desktop.popover())

    def test_a_second_click_on_the_item_closes_it_and_does_not_reopen_it(self):
        with self.desktop.calls("Activate") as activations:
            self.open()
            self.assertEqual(activations.count(), 1)

            self.click_item()

            activations.wait_until(2)
            self.settle(self.torvi)
            self.wait_for_no_popover()

    def test_a_third_click_opens_it_again(self):
        with self.desktop.calls("Activate") as activations:
            self.open()
            self.click_item()
            activations.wait_until(2)
            self.wait_for_no_popover()

            self.click_item()

            self.wait_for_popover()

    def test_after_a_click_elsewhere_the_item_opens_it_at_once(self):
        self.open()
        self.desktop.click(ELSEWHERE)
        self.wait_for_no_popover()

        self.click_item()

        self.wait_for_popover()

    def test_escape_closes_it(self):
        self.open()
        wait_for(lambda: self.desktop.run("xdotool", "getactivewindow").strip()
                 in self.desktop.windows(), "the keyboard")

        self.desktop.key("Escape")

        self.wait_for_no_popover()

    def test_a_right_click_on_the_item_is_left_to_the_panel(self):
        item = self.desktop.item_position()

        self.desktop.click(item, button=3)
        self.addCleanup(self.desktop.key, "Escape")  # the panel's own menu
        self.settle(self.torvi)

        self.assertIsNone(self.desktop.popover())

    def test_it_is_not_in_the_task_list(self):
        self.open()

        for window in self.desktop.windows():
            self.assertLessEqual({"SKIP_TASKBAR", "SKIP_PAGER"}, self.desktop.states(window))

    def test_an_opening_brings_the_title_up_to_date(self):
        self.assertEqual(self.desktop.item_property(self.torvi, "XAyatanaLabel"), "''")

        self.open()

        wait_for(lambda: self.desktop.item_property(self.torvi, "XAyatanaLabel")
                 == "' orchard-labs'", "the title")
        self.desktop.picture("title")


class PopoverAtTheBottomTest(DesktopTestCase):
    DESKTOP = {"panel_edge": "bottom"}

    def test_it_stands_above_a_panel_at_the_bottom(self):
        self.desktop.launch_torvi()
        item = self.desktop.item_position()
        self.assertGreater(item[1], 870)

        self.desktop.click(item)

        self.assertEqual(self.wait_for_popover()[1], 900 - 28 - 750)
        self.desktop.picture("popover-above-panel")


if __name__ == "__main__":
    unittest.main()
