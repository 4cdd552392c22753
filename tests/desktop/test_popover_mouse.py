# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Everything that the popover does, done with the mouse; gcloud is asked what happened."""

import json
import re
import unittest

from demo_world import DemoWorldTestCase, demo
from desktop import wait_for
from open_window import BUTTON, FIELD, LABEL, MENU_ENTRY, SEGMENT

CHECKOUT = "larkspur-checkout-prod"
CAFE = "larkspur-cafe-fr"
CATALOG = "larkspur-catalog-prod"


class SwitchTest(DemoWorldTestCase):
    def test_a_project(self):
        self.popover.click(CAFE)

        self.wait_for_property("core", "project", CAFE)
        self.popover.wait(CAFE, LABEL)  # in the card
        self.popover.wait(CAFE, BUTTON, "selected")
        self.assertNotIn("selected", self.popover.wait(CHECKOUT).states)
        wait_for(lambda: self.preferences()["com.veldra.recents"].startswith(CAFE + ","),
                 "the recent projects")

    def test_an_account(self):
        self.popover.click(demo.MOONLIGHT)

        self.wait_for_property("core", "account", demo.MOONLIGHT)
        self.popover.wait(demo.MOONLIGHT, BUTTON, "selected")

    def test_a_configuration(self):
        self.popover.click("moonlight")

        self.popover.wait("moonlight", BUTTON, "selected")
        active = [configuration["name"]
                  for configuration in self.gcloud("config", "configurations", "list")
                  if configuration["is_active"]]
        self.assertEqual(active, ["moonlight"])
        self.wait_for_property("core", "project", "moonlight-weather")


class ImpersonationTest(DemoWorldTestCase):
    def impersonated_by_adc(self):
        address = self.credentials().get("service_account_impersonation_url", "")
        match = re.search(r"serviceAccounts/(.*):generateAccessToken", address)
        return match[1] if match else None

    def wait_for_adc(self, email):
        wait_for(lambda: self.impersonated_by_adc() == email, f"ADC of {email}")

    def test_by_adc_only_as_it_is_set_at_first(self):
        self.popover.click("Deployments")

        self.wait_for_adc(demo.DEPLOYER)
        self.popover.wait("ADC", LABEL)
        self.assertIsNone(self.property("auth", "impersonate_service_account"))

    def test_by_the_cli_only(self):
        self.popover.click("CLI Only", SEGMENT)
        self.popover.wait("CLI Only", SEGMENT, "checked")
        self.popover.click("Deployments")

        self.wait_for_property("auth", "impersonate_service_account", demo.DEPLOYER)
        self.popover.wait("Clear")
        self.assertIsNone(self.impersonated_by_adc())

    def test_by_both(self):
        self.popover.click("Both", SEGMENT)
        self.popover.wait("Both", SEGMENT, "checked")
        self.popover.click("Deployments")

        self.wait_for_property("auth", "impersonate_service_account", demo.DEPLOYER)
        self.wait_for_adc(demo.DEPLOYER)

    def test_of_an_address_that_is_typed(self):
        email = f"report-reader@{CHECKOUT}.iam.gserviceaccount.com"
        self.popover.click("CLI Only", SEGMENT)
        self.popover.click("SA email", FIELD)
        self.popover.type(f" {email} ")
        self.popover.wait_until_available("Go")
        self.popover.click("Go")

        self.wait_for_property("auth", "impersonate_service_account", email)
        wait_for(lambda: self.popover.text("SA email") == "", "an empty field")

    def test_and_its_end(self):
        self.popover.click("Both", SEGMENT)
        self.popover.click("Deployments")
        self.wait_for_adc(demo.DEPLOYER)
        self.popover.wait("ADC", LABEL)
        self.popover.wait("CLI", LABEL)

        self.popover.click("Clear")  # the first one, that of the CLI

        self.wait_for_property("auth", "impersonate_service_account", None)
        self.popover.wait_gone("CLI", LABEL)
        self.assertEqual(self.impersonated_by_adc(), demo.DEPLOYER)

        self.popover.click("Clear")

        wait_for(lambda: not self.impersonated_by_adc(), "the end of ADC's")
        self.popover.wait("No active impersonation", LABEL)


class CredentialsTest(DemoWorldTestCase):
    def test_a_sign_in_puts_its_address_on_the_clipboard(self):
        self.popover.click("ADC Login")

        printed = wait_for(self.printed_address, "the sign-in address")
        wait_for(lambda: self.desktop.clipboard() == printed, "the address on the clipboard")

    def printed_address(self):
        """As gcloud wrote it."""
        try:
            with open(self.journal, encoding="utf-8") as file:
                written = "".join(json.loads(line).get("bytes", "") for line in file)
        except FileNotFoundError:
            return None
        match = re.search(r"https://accounts\.google\.com/\S+(?=\s)", written)
        return match and match[0]

    def test_a_sign_in_replaces_the_credentials(self):
        before = self.credentials()["refresh_token"]

        self.popover.click("ADC Login")

        wait_for(lambda: self.credentials().get("refresh_token", before) != before,
                 "new credentials")

    def test_the_quota_project(self):
        self.popover.click(CAFE)
        self.wait_for_property("core", "project", CAFE)
        self.popover.wait(CAFE, LABEL)

        self.popover.click("Set Quota Project")

        wait_for(lambda: self.credentials().get("quota_project_id") == CAFE, "the quota project")
        self.popover.wait(f"Quota: {CAFE}", LABEL)

    def test_an_identity_token_is_copied_as_a_secret(self):
        button = self.popover.find("Copy Identity Token")

        self.popover.click("Copy Identity Token")

        wait_for(lambda: button.name == "Copied!", "the confirmation")
        self.assertRegex(self.desktop.clipboard(), r"^[\w-]+\.[\w-]+\.[\w-]+$")
        self.assertEqual(self.desktop.clipboard("x-kde-passwordManagerHint"), "secret")
        wait_for(lambda: button.name == "Copy Identity Token", "its end")
        self.popover.wait_until_available("Copy Identity Token")


class ProjectsTest(DemoWorldTestCase):
    def test_a_project_is_pinned_and_unpinned(self):
        self.popover.click(CATALOG, button=3)
        self.popover.click("Pin", MENU_ENTRY)

        wait_for(lambda: CATALOG in self.preferences()["com.veldra.favorites"], "the pin")
        wait_for(lambda: self.popover.rows()[:2] == [CAFE, CATALOG], "the row among the pinned")
        self.assertIn("pinned", self.popover.wait(CATALOG).description)

        self.popover.click(CATALOG, button=3)
        self.popover.click("Unpin", MENU_ENTRY)

        wait_for(lambda: CATALOG not in self.preferences()["com.veldra.favorites"], "no pin")
        wait_for(lambda: self.popover.rows()[:2] == [CAFE, CHECKOUT], "the row among the others")

    def test_they_are_filtered(self):
        self.popover.click("Filter projects...", FIELD)
        self.popover.type("CAF")

        wait_for(lambda: [row for row in self.popover.rows() if "larkspur" in row][0] == CAFE
                 and CHECKOUT not in self.popover.rows(), "the one that fits")

        self.popover.click("Clear")

        wait_for(lambda: CHECKOUT in self.popover.rows(), "all projects")
        self.assertEqual(self.popover.text("Filter projects..."), "")

    def test_the_filter_finds_display_names(self):
        self.popover.click("Filter projects...", FIELD)
        self.popover.type("weather station")

        wait_for(lambda: self.popover.rows()[:1] == ["moonlight-weather"], "the one that fits")


class FooterTest(DemoWorldTestCase):
    def test_refresh_says_when_it_is_done(self):
        button = self.popover.find("Refresh")

        self.popover.click("Refresh")

        wait_for(lambda: button.name == "Done", "the confirmation")
        wait_for(lambda: button.name == "Refresh", "its end")

    def test_the_manager_opens_in_place_of_the_popover(self):
        self.popover.click("Manager")

        wait_for(self.desktop.manager, "the manager window")
        self.wait_for_no_popover()

    def test_the_configurations_lead_to_the_manager_too(self):
        self.popover.click("Manage Configurations...")

        wait_for(self.desktop.manager, "the manager window")

    def test_quit_ends_torvi(self):
        self.popover.click("Quit")

        self.assertEqual(self.torvi.wait(), 0)


if __name__ == "__main__":
    unittest.main()
