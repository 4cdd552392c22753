# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The popover through assistive technology: what it is told, and what it can do."""

import unittest

from demo_world import DemoWorldTestCase, demo
from desktop import wait_for
from open_window import BUTTON, FIELD, LABEL, SEGMENT

CHECKOUT = "larkspur-checkout-prod"
CAFE = "larkspur-cafe-fr"
READER = f"report-reader@{CHECKOUT}.iam.gserviceaccount.com"


class DescriptionTest(DemoWorldTestCase):
    maxDiff = None

    def everything(self):
        """(role, name) of all that there is, on the screen or scrolled away, but for lines."""
        return self.popover.look(lambda: [
            (node.role, node.name) for node in self.popover.root.walk(everything=True)
            if node.role not in ("application", "separator") and node.extents[2] > 0])

    def test_everything_has_its_role_and_name_in_the_order_of_reading(self):
        self.popover.type("cafe")
        wait_for(lambda: self.popover.rows()[1] == demo.DEPLOYER, "the one that fits")

        self.assertEqual(self.everything(), [
            ("frame", "Torvi"),
            ("panel", "Torvi"),
            ("panel", "Active Context"),
            ("heading", "Active Context"),
            (LABEL, "Project"), (LABEL, CHECKOUT),
            (LABEL, "Account"), (LABEL, demo.MIRA),
            (LABEL, "ADC"), (LABEL, "User credentials"),
            (BUTTON, "Copy Identity Token"),
            ("heading", "PROJECTS"),
            (FIELD, "Filter projects..."), (BUTTON, "Clear"),
            (BUTTON, CAFE),
            ("heading", "ACCOUNTS"),
            (BUTTON, demo.DEPLOYER),
            (BUTTON, demo.MIRA), (LABEL, "active"),
            (BUTTON, demo.MOONLIGHT),
            (BUTTON, demo.READER),
            ("heading", "CONFIGURATIONS"),
            (BUTTON, "default"), (LABEL, "active"),
            (BUTTON, "moonlight"), (BUTTON, "reports"), (BUTTON, "robot"),
            (BUTTON, "Manage Configurations..."),
            ("heading", "SERVICE ACCOUNT IMPERSONATION"),
            (LABEL, "No active impersonation"),
            ("panel", "Mode"), (LABEL, "Mode"),
            (SEGMENT, "ADC Only"), (SEGMENT, "CLI Only"), (SEGMENT, "Both"),
            (LABEL, "Quick Impersonate"), (BUTTON, "Deployments"), (BUTTON, READER),
            (FIELD, "SA email"), (BUTTON, "Go"),
            ("heading", "APPLICATION DEFAULT CREDENTIALS"),
            (LABEL, "User credentials"), (LABEL, f"Quota: {CHECKOUT}"), (LABEL, "configured"),
            (BUTTON, "ADC Login"), (BUTTON, "Set Quota Project"),
            ("scroll bar", "Scroll"),
            (BUTTON, "Manager"), (BUTTON, "Quit"), (BUTTON, "Refresh"),
        ])

    def test_rows_tell_their_place_and_their_state(self):
        described = {node.name: node.description for node in self.popover.look(
            lambda: list(self.popover.root.walk(everything=True)))
            if node.role == BUTTON and node.extents[2] > 0}

        self.assertEqual(described[CAFE], "Café, thé et crêpes – démo ☕, pinned, 1 of 40")
        self.assertEqual(described[CHECKOUT], "Checkout – Production, pinned, active, 2 of 40")
        self.assertIn("2 of 4", described[demo.MIRA])
        self.assertIn("3 of 4", described["reports"])
        self.assertIn("2 of 2", described[READER])

    def test_what_is_active_is_selected(self):
        selected = self.popover.look(lambda: [
            node.name for node in self.popover.root.walk(everything=True)
            if "selected" in node.states])

        self.assertEqual(selected, [CHECKOUT, demo.MIRA, "default"])

    def test_what_cannot_be_pressed_says_so(self):
        go = self.control("Go")
        self.assertEqual(go.description, "unavailable")

        self.control("SA email", FIELD).act("SetFocus")
        self.popover.wait("SA email", FIELD, "focused")
        self.popover.type(" ")

        wait_for(lambda: go.description == "", "a button that can be pressed")

    def test_segments_say_which_one_is_chosen(self):
        chosen = [name for name in ("ADC Only", "CLI Only", "Both")
                  if "checked" in self.control(name, SEGMENT).states]

        self.assertEqual(chosen, ["ADC Only"])


class OperationTest(DemoWorldTestCase):
    """Wherever the controls are: nothing has to be scrolled into view."""

    def test_a_project(self):
        self.control("larkspur-ml-training").act("Press")

        self.wait_for_property("core", "project", "larkspur-ml-training")

    def test_an_account(self):
        self.control(demo.MOONLIGHT).act("Press")

        self.wait_for_property("core", "account", demo.MOONLIGHT)

    def test_a_configuration_and_the_end_of_its_impersonation(self):
        self.control("reports").act("Press")
        self.wait_for_property("auth", "impersonate_service_account", demo.READER)

        self.control("Clear").act("Press")

        self.wait_for_property("auth", "impersonate_service_account", None)

    def test_impersonation_of_a_saved_account(self):
        both = self.control("Both", SEGMENT)
        both.act("Press")
        wait_for(lambda: "checked" in both.states, "the mode")

        self.control("Deployments").act("Press")

        self.wait_for_property("auth", "impersonate_service_account", demo.DEPLOYER)
        wait_for(lambda: self.credentials().get("type") == "impersonated_service_account", "ADC")

    def test_impersonation_of_an_address(self):
        cli = self.control("CLI Only", SEGMENT)
        cli.act("Press")
        wait_for(lambda: "checked" in cli.states, "the mode")
        self.control("SA email", FIELD).act("SetFocus")
        self.popover.wait("SA email", FIELD, "focused")
        self.popover.type(READER)
        wait_for(lambda: self.popover.text("SA email") == READER, "the address")

        self.control("Go").act("Press")

        self.wait_for_property("auth", "impersonate_service_account", READER)

    def test_credentials_and_their_quota_project(self):
        before = self.credentials()["refresh_token"]
        self.control("ADC Login").act("Press")
        wait_for(lambda: self.credentials().get("refresh_token", before) != before,
                 "new credentials")
        self.control(CAFE).act("Press")
        self.popover.wait(CAFE, LABEL)

        self.control("Set Quota Project").act("Press")

        wait_for(lambda: self.credentials().get("quota_project_id") == CAFE, "the quota project")

    def test_the_identity_token(self):
        button = self.control("Copy Identity Token")

        button.act("Press")

        wait_for(lambda: button.name == "Copied!", "the confirmation")
        self.assertEqual(self.desktop.clipboard().count("."), 2)

    def test_refresh(self):
        button = self.control("Refresh")

        button.act("Press")

        wait_for(lambda: button.name == "Done", "the confirmation")

    def test_the_manager(self):
        self.control("Manage Configurations...").act("Press")

        wait_for(self.desktop.manager, "the manager window")

    def test_the_end(self):
        self.control("Quit").act("Press")

        self.assertEqual(self.torvi.wait(), 0)


if __name__ == "__main__":
    unittest.main()
