# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Everything that the popover does, done with the keyboard alone."""

import unittest

from demo_world import DemoWorldTestCase, demo
from desktop import wait_for
from open_window import LABEL, MENU_ENTRY, SEGMENT

CHECKOUT = "larkspur-checkout-prod"
CAFE = "larkspur-cafe-fr"
READER = f"report-reader@{CHECKOUT}.iam.gserviceaccount.com"


class KeyboardTest(DemoWorldTestCase):
    def setUp(self):
        super().setUp()
        self.popover.wait("Torvi", "panel", "focused")

    # The rows

    def test_return_switches_to_the_project_of_a_row(self):
        self.assertEqual(self.popover.press("Down"), CAFE)
        self.desktop.key("Return")

        self.wait_for_property("core", "project", CAFE)

    def test_up_goes_through_the_rows_of_all_sections_from_below(self):
        rows = []
        while not rows or rows[-1] != "larkspur.example:legacy-billing":
            rows.append(self.popover.press("Up"))

        self.assertEqual(rows, [
            READER, "Deployments", "robot", "reports", "moonlight", "default", demo.READER,
            demo.MOONLIGHT, demo.MIRA, demo.DEPLOYER, "zz-decommission-soon", "x7",
            "moonlight-photos", "moonlight-blog", "larkspur.example:legacy-billing"])

    def test_down_goes_from_section_to_section(self):
        self.popover.type("cafe")
        wait_for(lambda: self.popover.text("Filter projects...") == "cafe", "the filter")
        rows = [self.popover.press("Down") for _ in range(11)]

        self.assertEqual(rows, [
            CAFE, demo.DEPLOYER, demo.MIRA, demo.MOONLIGHT, demo.READER, "default", "moonlight",
            "reports", "robot", "Deployments", READER])

    def test_return_activates_a_configuration(self):
        self.popover.press_until("Up", "moonlight")
        self.desktop.key("Return")

        self.wait_for_property("core", "project", "moonlight-weather")

    def test_return_switches_to_an_account(self):
        self.popover.press_until("Up", demo.MOONLIGHT)
        self.desktop.key("Return")

        self.wait_for_property("core", "account", demo.MOONLIGHT)

    def test_the_menu_key_opens_a_rows_menu(self):
        self.check_unpinning("Menu")

    def test_shift_f10_opens_a_rows_menu(self):
        self.check_unpinning("shift+F10")

    def check_unpinning(self, key):
        self.assertEqual(self.popover.press("Down"), CAFE)
        self.desktop.key(key)
        self.popover.wait("Unpin", MENU_ENTRY)
        self.popover.press_until("Down", "Unpin")
        self.desktop.key("Return")

        wait_for(lambda: CAFE not in self.preferences()["com.veldra.favorites"], "no pin")
        # The row has travelled to the others; the keyboard keeps its place.
        wait_for(lambda: self.popover.rows()[0] == CHECKOUT, "the row among the others")
        wait_for(lambda: self.popover.focused() == CHECKOUT, "the keyboard in its place")

    # The filter

    def test_typing_filters_and_escape_clears_and_then_closes(self):
        self.popover.type("weather")
        wait_for(lambda: self.popover.rows()[:1] == ["moonlight-weather"], "the one that fits")

        self.desktop.key("Escape")
        wait_for(lambda: self.popover.text("Filter projects...") == "", "an empty filter")
        wait_for(lambda: CHECKOUT in self.popover.rows(), "all projects")

        self.desktop.key("Escape")
        self.wait_for_no_popover()

    def test_what_was_found_is_switched_to(self):
        self.popover.type("weather")
        wait_for(lambda: self.popover.rows()[:1] == ["moonlight-weather"], "the one that fits")
        self.assertEqual(self.popover.press("Down"), "moonlight-weather")
        self.desktop.key("Return")

        self.wait_for_property("core", "project", "moonlight-weather")

    # The controls

    def test_space_copies_the_identity_token(self):
        button = self.popover.find("Copy Identity Token")
        self.assertEqual(self.popover.press("Tab"), "Copy Identity Token")
        self.desktop.key("space")

        wait_for(lambda: button.name == "Copied!", "the confirmation")
        self.assertEqual(self.desktop.clipboard("x-kde-passwordManagerHint"), "secret")

    def test_the_tab_key_stops_once_at_each_control(self):
        stops = []
        while not stops or stops[-1] != "Refresh":
            stops.append(self.popover.press("Tab"))

        self.assertEqual(stops, [
            "Copy Identity Token", "Filter projects...", CAFE, demo.DEPLOYER, "default",
            "Manage Configurations...", "ADC Only", "Deployments", "SA email", "ADC Login",
            "Set Quota Project", "Manager", "Quit", "Refresh"])

    def test_arrows_choose_the_mode_and_return_impersonates(self):
        self.popover.press_until("shift+Tab", "ADC Only")
        self.assertEqual(self.popover.press("Right"), "CLI Only")
        self.popover.wait("CLI Only", SEGMENT, "checked")
        self.assertEqual(self.popover.press("Tab"), "Deployments")
        self.desktop.key("Return")

        self.wait_for_property("auth", "impersonate_service_account", demo.DEPLOYER)

    def test_return_impersonates_the_address_that_was_typed(self):
        self.popover.press_until("shift+Tab", "SA email")
        self.popover.type(READER)
        self.desktop.key("Return")

        self.popover.wait("ADC", LABEL)
        self.assertIn(READER, self.credentials()["service_account_impersonation_url"])
        wait_for(lambda: self.popover.text("SA email") == "", "an empty field")

    def test_impersonation_is_ended(self):
        self.popover.press_until("Up", "reports")
        self.desktop.key("Return")  # impersonates
        self.wait_for_property("auth", "impersonate_service_account", demo.READER)
        self.popover.press_until("Tab", "Clear")
        self.desktop.key("Return")

        self.wait_for_property("auth", "impersonate_service_account", None)

    def test_a_sign_in(self):
        before = self.credentials()["refresh_token"]
        self.popover.press_until("shift+Tab", "ADC Login")
        self.desktop.key("Return")

        wait_for(lambda: self.credentials().get("refresh_token", before) != before,
                 "new credentials")

    def test_the_quota_project(self):
        self.assertEqual(self.popover.press("Down"), CAFE)
        self.desktop.key("Return")
        self.popover.wait(CAFE, LABEL)
        self.popover.press_until("shift+Tab", "Set Quota Project")
        self.desktop.key("space")

        wait_for(lambda: self.credentials().get("quota_project_id") == CAFE, "the quota project")

    # The shortcuts

    def test_f5_refreshes(self):
        button = self.popover.find("Refresh")
        self.desktop.key("F5")

        wait_for(lambda: button.name == "Done", "the confirmation")

    def test_control_m_opens_the_manager(self):
        self.desktop.key("ctrl+m")

        wait_for(self.desktop.manager, "the manager window")
        self.wait_for_no_popover()

    def test_control_q_quits(self):
        self.desktop.key("ctrl+q")

        self.assertEqual(self.torvi.wait(), 0)


if __name__ == "__main__":
    unittest.main()
