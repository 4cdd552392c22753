# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Everything that the manager window does to gcloud, done with the mouse on the real one."""

import unittest

from desktop import wait_for
from open_manager import PICKER, ROW, TAB
from open_window import BUTTON, FIELD, LABEL, SEGMENT
from real_gcloud_test_case import RealGCloudTestCase
from signed_in_world import DANA, DEPLOYER, PLAIN, PROD, READER, STAGE

ROBOT = "robot@example.com"


class ManagerTest(RealGCloudTestCase):
    def setUp(self):
        super().setUp()
        self.manager = self.open_manager()

    def click(self, name, role=BUTTON):
        self.step(f"click on {role} “{name}”")
        self.manager.click(name, role)

    def click_action(self, row, name):
        self.step(f"click on “{name}” of “{row}”")
        self.manager.click_action(row, name)

    def write(self, field, text):
        self.tell(f"  type “{text}” as “{field}”")
        self.manager.click(field, FIELD)
        self.manager.type(text)
        wait_for(lambda: self.manager.text(field) == text, "the text")

    def choose(self, mode):
        self.tell(f"  mode “{mode}”")
        self.manager.click(mode, SEGMENT)
        self.manager.wait(mode, SEGMENT, "checked")

    def wait_for_rows(self, *rows):
        wait_for(lambda: self.manager.rows() == list(rows), f"the rows {rows}")

    def check_configurations(self, *names, active):
        self.check("\n".join(names), "config", "configurations", "list", "--format=value(name)")
        self.check(active, "config", "configurations", "list", "--filter=is_active=true",
                   "--format=value(name)")

    def check_saved(self, *accounts):
        """Asks torvictl for the saved accounts, each with its label in parentheses."""
        saved = self.ask_torvictl("saved-accounts", PROD)
        answer = [entry["email"] + (f" ({entry['displayName']})" if entry["displayName"] else "")
                  for entry in saved]
        self.tell(f"      saved: {', '.join(answer) or '(nothing)'}")
        self.assertEqual(answer, list(accounts))

    def test_configurations(self):
        self.click("Configurations", TAB)
        self.wait_for_rows("default", "labs", "spare")
        self.manager.click("Create Configuration")
        self.manager.wait("Configuration name", FIELD, "focused")
        self.write("Configuration name", "fresh")
        self.click("Create")
        self.wait_for_rows("default", "fresh", "labs", "spare")
        self.manager.wait_gone("Create")
        self.done()
        self.check_configurations("default", "fresh", "labs", "spare", active="fresh")

        self.click_action("labs", "Activate")
        self.manager.wait_for_action("fresh", "Activate")
        self.done()
        self.check_configurations("default", "fresh", "labs", "spare", active="labs")

        self.click_action("fresh", "Delete")
        self.wait_for_rows("default", "labs", "spare")
        self.done()
        self.check_configurations("default", "labs", "spare", active="labs")

    def test_service_accounts_are_kept(self):
        self.click("Service Accounts", TAB)
        self.wait_for_rows(DEPLOYER, READER, PLAIN)
        self.done()
        self.check("\n".join([DEPLOYER, READER, PLAIN]), "iam", "service-accounts", "list",
                   f"--project={PROD}", "--format=value(email)")

        self.click_action(PLAIN, "Save for quick access")
        self.wait_for_rows(PLAIN, DEPLOYER, READER)
        self.done()
        self.check_saved(PLAIN)

        self.write("Service account email", ROBOT)
        self.write("Label (optional)", "Robot")
        self.click("Add")
        self.wait_for_rows(PLAIN, ROBOT, DEPLOYER, READER)
        self.done()
        self.check_saved(PLAIN, f"{ROBOT} (Robot)")

        self.click_action(PLAIN, "Remove")
        self.wait_for_rows(ROBOT, DEPLOYER, READER, PLAIN)
        self.done()
        self.check_saved(f"{ROBOT} (Robot)")

        self.step(f"choose the project “{STAGE}”")
        self.manager.click("Project", PICKER)
        self.manager.click(STAGE, ROW)
        self.manager.wait("No Service Accounts Found", LABEL)
        self.done()

    def test_service_accounts_are_impersonated(self):
        self.click("Service Accounts", TAB)
        self.wait_for_rows(DEPLOYER, READER, PLAIN)
        self.done()

        self.choose("ADC Only")
        self.click_action(DEPLOYER, "Impersonate")
        wait_for(lambda: "impersonated" in self.credentials().get("type", ""), "the credentials")
        self.done()
        self.check_property("auth/impersonate_service_account", "")
        self.check_credentials_of(DEPLOYER)

        self.choose("CLI Only")
        self.click_action(READER, "Impersonate")
        wait_for(lambda: len(self.runs()) == 1, "gcloud")
        self.done()
        self.check_property("auth/impersonate_service_account", READER)
        self.check_credentials_impersonate(DEPLOYER)

        self.choose("Both")
        self.click_action(READER, "Impersonate")
        wait_for(lambda: len(self.runs()) == 2, "gcloud twice")
        self.done()
        self.check_property("auth/impersonate_service_account", READER)
        self.check_credentials_impersonate(READER)

    def test_default_credentials(self):
        self.click("ADC", TAB)
        self.manager.wait("Not Configured", LABEL)

        self.click("Run ADC Login (opens browser)")
        self.manager.wait("User Credentials (authorized_user)", LABEL)
        self.manager.wait(PROD, LABEL)
        self.done()
        self.check_clipboard()
        self.check_credentials_of(DANA)

        self.write("Quota project ID", STAGE)
        self.click("Set Quota Project")
        self.manager.wait(STAGE, LABEL)
        self.done()
        self.check_quota_project(STAGE)
        self.assertEqual(self.manager.text("Quota project ID"), STAGE)

        self.click("Use Active Project as Quota Project")
        self.manager.wait(PROD, LABEL)
        self.done()
        self.check_quota_project(PROD)


if __name__ == "__main__":
    unittest.main()
