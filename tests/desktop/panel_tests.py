# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What holds in each panel that tells where its item was clicked."""

from desktop import wait_for


def at_rest(item):
    """What item() is once the panel leaves it in its place."""
    last = None

    def look():
        nonlocal last
        before, last = last, item()
        return last if last == before else None
    return wait_for(look, "the item")


class PanelTests:
    """The tests, for a test case whose item() is (width, x, y) of the item, of its middle, and None
    while there is none.
    """

    PANEL_HEIGHT = 0

    def setUp(self):
        super().setUp()
        wait_for(lambda: self.item() is None, "a panel without the last test's item")
        self.torvi = self.desktop.launch_torvi()
        wait_for(lambda: str(self.torvi.pid)
                 in self.desktop.watcher("RegisteredStatusNotifierItems"), "the item in the panel")

    def item_at_rest(self):
        return at_rest(self.item)

    def test_a_click_opens_the_popover_under_the_item(self):
        _, x, y = self.item_at_rest()

        self.desktop.click((x, y))

        self.assertEqual(self.wait_for_popover(), (min(x - 200, 1280 - 400), self.PANEL_HEIGHT))
        self.desktop.picture(type(self).__name__)

    def test_a_second_click_closes_it_and_a_third_opens_it_again(self):
        _, x, y = self.item_at_rest()
        with self.desktop.calls("Activate") as activations:
            self.desktop.click((x, y))
            self.wait_for_popover()
            self.wait_for_title()

            _, x, y = self.item_at_rest()
            self.desktop.click((x, y))
            activations.wait_until(2)
            self.settle(self.torvi)
            self.wait_for_no_popover()

            _, x, y = self.item_at_rest()
            self.desktop.click((x, y))
            self.wait_for_popover()

    def test_a_click_elsewhere_closes_it(self):
        _, x, y = self.item_at_rest()
        self.desktop.click((x, y))
        self.wait_for_popover()

        self.desktop.click((300, 600))

        self.wait_for_no_popover()

    def wait_for_title(self):
        wait_for(lambda: self.desktop.item_property(self.torvi, "XAyatanaLabel")
                 == "' orchard-labs'", "the title")
