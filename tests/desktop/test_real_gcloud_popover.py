# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Everything that the popover does to gcloud, done with the mouse on the real one."""

import unittest

from desktop import wait_for
from open_window import BUTTON, FIELD, LABEL, MENU_ENTRY, SEGMENT
from real_gcloud_test_case import RealGCloudTestCase, claims_of
from signed_in_world import DANA, DEPLOYER, PROD, READER, SAM, STAGE

REPORTS = "orchard-data-5150"
SANDBOX = "labs-sandbox-3141"


class PopoverTest(RealGCloudTestCase):
    def setUp(self):
        super().setUp()
        self.popover = self.open()
        self.popover.wait_until_loaded()

    def preparations(self, world):
        return [*super().preparations(world),
                ("save-account", DEPLOYER, "--project", PROD, "--label", "Deployments")]

    def click(self, name, role=BUTTON):
        self.step(f"click on {role} “{name}”")
        self.popover.click(name, role)

    def choose(self, mode):
        self.popover.click(mode, SEGMENT)
        self.popover.wait(mode, SEGMENT, "checked")
        self.tell(f"  mode “{mode}”")

    def test_switching(self):
        self.click(STAGE)
        self.popover.wait(STAGE, BUTTON, "selected")
        self.done()
        self.check_property("core/project", STAGE)

        self.click(SAM)
        wait_for(lambda: SANDBOX in self.popover.rows(), "the projects of the account")
        self.popover.wait(SAM, BUTTON, "selected")
        self.done()
        self.check_property("core/account", SAM)

        self.click("labs")
        self.popover.wait("labs", BUTTON, "selected")
        self.popover.wait(SANDBOX, LABEL)  # in the card
        self.done()
        self.check("labs", "config", "configurations", "list", "--filter=is_active=true",
                   "--format=value(name)")
        self.check_property("core/project", SANDBOX)

    def test_impersonation_by_adc_only(self):
        self.choose("ADC Only")
        self.click("Deployments")
        self.popover.wait("ADC", LABEL)
        self.done()
        self.check_property("auth/impersonate_service_account", "")
        self.check_credentials_of(DEPLOYER)

        self.click("Clear")
        self.popover.wait("No active impersonation", LABEL)
        self.done()
        self.check_no_credentials()

    def test_impersonation_by_the_cli_only(self):
        self.choose("CLI Only")
        self.step(f"type “ {READER} ” as SA email, click on “Go”")
        self.popover.click("SA email", FIELD)
        self.popover.type(f" {READER} ")
        self.popover.wait_until_available("Go")
        self.popover.click("Go")
        self.popover.wait("CLI", LABEL)
        wait_for(lambda: self.popover.text("SA email") == "", "an empty field")
        self.done()
        self.check_property("auth/impersonate_service_account", READER)
        self.check(REPORTS, "projects", "list", "--format=value(projectId)")

        self.click("Clear")
        self.popover.wait("No active impersonation", LABEL)
        self.done()
        self.check_property("auth/impersonate_service_account", "")

    def test_impersonation_by_both(self):
        self.choose("Both")
        self.click("Deployments")
        self.popover.wait("CLI", LABEL)
        self.popover.wait("ADC", LABEL)
        self.done()
        self.check_property("auth/impersonate_service_account", DEPLOYER)
        self.check_credentials_impersonate(DEPLOYER)

        self.click("Clear")  # the first one, that of the CLI
        self.popover.wait_gone("CLI", LABEL)
        self.done()
        self.check_property("auth/impersonate_service_account", "")
        self.check_credentials_of(DEPLOYER)

        self.click("Clear")
        self.popover.wait("No active impersonation", LABEL)
        self.done()
        self.check_no_credentials()

    def test_a_sign_in_and_its_quota_project(self):
        self.click("ADC Login")
        self.popover.wait(f"Quota: {PROD}", LABEL)
        self.done()
        self.check_clipboard()
        self.check_credentials_of(DANA)

        self.click(STAGE)
        self.popover.wait(STAGE, BUTTON, "selected")
        self.done()
        self.click("Set Quota Project")
        self.popover.wait(f"Quota: {STAGE}", LABEL)
        self.done()
        self.check_quota_project(STAGE)

    def test_an_identity_token(self):
        button = self.popover.find("Copy Identity Token")
        self.click("Copy Identity Token")
        wait_for(lambda: button.name == "Copied!", "the confirmation")
        self.done()
        owner = claims_of(self.desktop.clipboard())["email"]
        self.tell(f"      on the clipboard: an identity token of {owner}")
        self.assertEqual(owner, DANA)

    def test_a_pin(self):
        before = self.popover.rows()
        self.assertGreater(before.index(STAGE), 0)
        self.step(f"secondary click on “{STAGE}”, then “Pin”")
        self.popover.click(STAGE, button=3)
        self.popover.click("Pin", MENU_ENTRY)
        wait_for(lambda: self.popover.rows()[0] == STAGE, "the row among the pinned")
        self.done()
        self.tell(f"      stored: {self.preferences()['com.veldra.favorites']}")
        self.assertEqual(self.preferences()["com.veldra.favorites"], STAGE)


if __name__ == "__main__":
    unittest.main()
