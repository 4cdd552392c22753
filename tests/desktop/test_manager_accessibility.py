# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The manager window through assistive technology: what it is told, and what it can do."""

import unittest

from demo_world import DemoTestCase, demo
from desktop import wait_for
from open_manager import PICKER, ROW, TAB
from open_window import BUTTON, FIELD, LABEL, SEGMENT

PROJECT = "larkspur-checkout-prod"
CAFE = "larkspur-cafe-fr"
READER = f"report-reader@{PROJECT}.iam.gserviceaccount.com"
STOCK = f"lagerbestand@{PROJECT}.iam.gserviceaccount.com"
LEGACY = f"legacy@{PROJECT}.iam.gserviceaccount.com"
GCLOUD_PATH = "gcloud path (auto-detected if empty)"
TABS = ["Configurations", "Service Accounts", "ADC", "Settings", "About"]


class ManagerTestCase(DemoTestCase):
    maxDiff = None

    def setUp(self):
        super().setUp()
        wait_for(lambda: PROJECT in self.desktop.item_property(self.torvi, "ToolTip"),
                 "the context")
        self.manager = self.open_manager()

    def show(self, tab):
        self.manager.wait(tab, TAB).act("Press")
        self.manager.wait(tab, TAB, "selected")

    def wait_for_rows(self, *rows):
        wait_for(lambda: self.manager.rows() == list(rows), f"the rows {rows}")

    def press(self, name, role=BUTTON):
        self.manager.wait(name, role).act("Press")

    def press_action(self, row, name):
        self.manager.wait_for_action(row, name).act("Press")

    def write(self, field, text):
        self.manager.wait(field, FIELD).act("SetFocus")
        self.manager.wait(field, FIELD, "focused")
        self.manager.type(text)
        wait_for(lambda: self.manager.text(field) == text, "the text")

    def accounts(self):
        """The saved ones, as they are stored."""
        return self.preferences()["com.veldra.serviceaccounts"]


class DescriptionTest(ManagerTestCase):
    def everything(self):
        """(role, name) of what shows below the tabs, in the order in which it is told."""
        return self.manager.look(lambda: [
            (node.role, node.name) for node in self.manager.root.walk()
            if node.role not in ("application", "frame", "separator", "page tab list", TAB)
            and node.name != "Torvi"])

    def check(self, *expected):
        try:
            wait_for(lambda: self.everything() == list(expected), "the page")
        except AssertionError:
            self.assertEqual(self.everything(), list(expected))

    def describe(self, *roles):
        """(name, description) of what shows in these roles."""
        return self.manager.look(lambda: [(node.name, node.description)
                                          for node in self.manager.root.walk()
                                          if node.role in roles])

    def configurations_page(self):
        return [
            ("list", "Configurations"),
            (ROW, "default"), (LABEL, "active"),
            (ROW, "moonlight"), (BUTTON, "Activate"), (BUTTON, "Delete"),
            (ROW, "reports"), (BUTTON, "Activate"), (BUTTON, "Delete"),
            (ROW, "robot"), (BUTTON, "Activate"), (BUTTON, "Delete"),
            (BUTTON, "Create Configuration"),
        ]

    def test_the_tabs(self):
        tabs = self.manager.look(lambda: [
            node for node in self.manager.root.walk() if node.role == TAB])

        self.assertEqual([tab.name for tab in tabs], TABS)
        for tab in tabs:
            tab.act("Press")
            wait_for(lambda: [other.name for other in tabs if "selected" in other.states]
                     == [tab.name], f"{tab.name} alone to be chosen")

    def test_configurations(self):
        self.check(*self.configurations_page())
        self.assertEqual(self.describe(ROW), [
            ("default", f"Project: {PROJECT}, Account: {demo.MIRA}, Region: europe-west1, active, "
             "1 of 4"),
            ("moonlight", f"Project: moonlight-weather, Account: {demo.MOONLIGHT}, 2 of 4"),
            ("reports", f"Project: larkspur-data-warehouse, Account: {demo.MIRA}, "
             "Region: us-central1, 3 of 4"),
            ("robot", f"Account: {demo.DEPLOYER}, 4 of 4"),
        ])
        self.assertEqual(self.describe(BUTTON), [
            *((name, row) for row in ("moonlight", "reports", "robot")
              for name in ("Activate", "Delete")), ("Create Configuration", "")])

    def test_the_sheet(self):
        self.press("Create Configuration")
        self.manager.wait("Configuration name", FIELD, "focused")
        self.check(
            *self.configurations_page(),
            ("dialog", ""),  # what dims the page
            ("dialog", "New Configuration"),
            ("heading", "New Configuration"),
            (FIELD, "Configuration name"),
            (BUTTON, "Cancel"), (BUTTON, "Create"),
        )

    def test_the_sheet_says_whether_it_can_create(self):
        self.press("Create Configuration")
        create = self.manager.wait("Create")
        self.assertEqual(create.description, "unavailable")

        self.write("Configuration name", " ")

        wait_for(lambda: create.description == "", "a button that can be pressed")

    def test_service_accounts(self):
        self.show("Service Accounts")
        self.wait_for_rows(demo.DEPLOYER, READER, STOCK, LEGACY)
        self.check(
            (LABEL, "Project:"), (PICKER, "Project"),
            ("panel", "Mode"), (LABEL, "Mode"),
            (SEGMENT, "ADC Only"), (SEGMENT, "CLI Only"), (SEGMENT, "Both"),
            ("list", "Service Accounts"),
            (ROW, demo.DEPLOYER), (BUTTON, "Impersonate"), (BUTTON, "Remove"),
            (ROW, READER), (BUTTON, "Impersonate"), (BUTTON, "Remove"),
            (ROW, STOCK), (BUTTON, "Impersonate"), (BUTTON, "Save for quick access"),
            (ROW, LEGACY), (BUTTON, "Impersonate"), (BUTTON, "Save for quick access"),
            (FIELD, "Service account email"), (FIELD, "Label (optional)"), (BUTTON, "Add"),
        )
        self.assertEqual(self.describe(ROW), [
            (demo.DEPLOYER, "Deployments, saved, 1 of 4"),
            (READER, "saved, 2 of 4"),
            (STOCK, "Lagerbestand-Abgleich (nächtlich), discovered, 3 of 4"),
            (LEGACY, "discovered, 4 of 4"),
        ])
        self.assertEqual(self.describe(PICKER), [("Project", PROJECT)])
        self.assertEqual(self.chosen_mode(), ["ADC Only"])

    def chosen_mode(self):
        return self.manager.look(lambda: [node.name for node in self.manager.root.walk()
                                          if node.role == SEGMENT and "checked" in node.states])

    def test_no_service_accounts(self):
        self.show("Service Accounts")
        self.wait_for_rows(demo.DEPLOYER, READER, STOCK, LEGACY)
        self.press("Project", PICKER)
        self.press(CAFE, ROW)

        self.manager.wait("No Service Accounts Found", LABEL)
        self.manager.wait("Could not list service accounts (missing IAM permissions?). "
                          "Add one manually below.", LABEL)

    def test_whether_an_account_can_be_added(self):
        self.show("Service Accounts")
        add = self.manager.wait("Add")
        self.assertEqual(add.description, "unavailable")

        self.write("Service account email", "a")

        wait_for(lambda: add.description == "", "a button that can be pressed")

    def test_default_credentials(self):
        self.show("ADC")
        self.check(
            ("panel", "Current ADC Status"),
            (LABEL, "Type:"), (LABEL, "User Credentials (authorized_user)"),
            (LABEL, "Valid:"), (LABEL, "Yes"),
            (LABEL, "Quota Project:"), (LABEL, PROJECT),
            ("panel", "Actions"),
            (BUTTON, "Run ADC Login (opens browser)"),
            (BUTTON, "Use Active Project as Quota Project"),
            (FIELD, "Quota project ID"), (BUTTON, "Set Quota Project"),
        )

    def test_settings(self):
        self.show("Settings")
        self.check(
            ("panel", "General"),
            ("check box", "Launch at Login"),
            (LABEL, "Menubar Display"), (PICKER, "Menubar Display"),
            ("spin box", "Refresh interval: 5 min"),
            ("panel", "gcloud CLI"),
            (FIELD, GCLOUD_PATH),
            (LABEL, "Leave empty to auto-detect. Common locations are searched automatically."),
        )
        self.assertEqual(self.describe(PICKER), [("Menubar Display", "Icon + Project")])
        self.assertNotIn("checked", self.manager.find("Launch at Login", "check box").states)
        self.assertEqual(self.manager.text(GCLOUD_PATH),
                         self.world.gcloud)

    def test_about(self):
        self.show("About")
        self.manager.wait("Torvi", "heading")
        version = self.manager.look(lambda: list(self.manager.root.walk()))[-1].name
        self.assertRegex(version, r"^Version \d+\.\d+")
        self.check(
            ("graphic", "Torvi icon"),
            (LABEL, "Google Cloud authentication manager for macOS"),
            (BUTTON, "torvi.example"),
            (LABEL, version),
        )


class ConfigurationsTest(ManagerTestCase):
    def test_one_is_created(self):
        self.press("Create Configuration")
        self.write("Configuration name", "fresh")
        self.press("Create")

        self.wait_for_rows("default", "fresh", "moonlight", "reports", "robot")
        self.assertTrue(self.configurations()["fresh"])
        self.manager.wait_gone("Create")

    def test_none_is_created(self):
        self.press("Create Configuration")
        self.write("Configuration name", "never")
        self.press("Cancel")
        self.manager.wait_gone("Create")

        self.press("Create Configuration")
        self.manager.wait("Configuration name", FIELD, "focused")
        self.assertEqual(self.manager.text("Configuration name"), "")
        self.assertNotIn("never", self.configurations())

    def test_one_is_activated(self):
        self.press_action("reports", "Activate")

        self.manager.wait_for_action("default", "Activate")
        self.assertIsNone(self.manager.action("reports", "Activate"))
        self.assertTrue(self.configurations()["reports"])

    def test_one_is_deleted(self):
        self.press_action("robot", "Delete")

        self.wait_for_rows("default", "moonlight", "reports")
        self.assertNotIn("robot", self.configurations())

    def test_a_row_becomes_the_current_one(self):
        self.press("reports", ROW)

        self.manager.wait("reports", ROW, "focused")


class ServiceAccountsTest(ManagerTestCase):
    def setUp(self):
        super().setUp()
        self.show("Service Accounts")
        self.wait_for_rows(demo.DEPLOYER, READER, STOCK, LEGACY)

    def test_one_is_impersonated_by_the_cli(self):
        self.press("CLI Only", SEGMENT)
        self.manager.wait("CLI Only", SEGMENT, "checked")
        self.press_action(demo.DEPLOYER, "Impersonate")

        self.wait_for_property("auth", "impersonate_service_account", demo.DEPLOYER)

    def test_one_is_impersonated_by_both(self):
        self.press("Both", SEGMENT)
        self.manager.wait("Both", SEGMENT, "checked")
        self.press_action(STOCK, "Impersonate")

        self.wait_for_property("auth", "impersonate_service_account", STOCK)
        wait_for(lambda: STOCK in self.credentials().get("service_account_impersonation_url", ""),
                 "the credentials")

    def test_one_is_saved_and_removed(self):
        self.press_action(LEGACY, "Save for quick access")
        self.wait_for_rows(demo.DEPLOYER, READER, LEGACY, STOCK)
        self.assertIn(LEGACY, self.accounts())

        self.press_action(LEGACY, "Remove")
        self.wait_for_rows(demo.DEPLOYER, READER, STOCK, LEGACY)
        self.assertNotIn(LEGACY, self.accounts())

    def test_one_is_added(self):
        self.write("Service account email", "robot@example.com")
        self.write("Label (optional)", "Robot")
        self.press("Add")

        self.wait_for_rows(demo.DEPLOYER, READER, "robot@example.com", STOCK, LEGACY)
        self.assertIn("robot@example.com", self.accounts())
        wait_for(lambda: self.manager.text("Service account email") == "", "an empty field")
        self.assertEqual(self.manager.text("Label (optional)"), "")

    def test_another_project_is_chosen(self):
        self.press("Project", PICKER)
        self.press("larkspur-data-warehouse", ROW)

        wait_for(lambda: self.manager.rows()[:1] == [demo.READER], "the project's accounts")


class DefaultCredentialsTest(ManagerTestCase):
    def setUp(self):
        super().setUp()
        self.show("ADC")

    def test_a_sign_in(self):
        before = self.credentials()["refresh_token"]
        self.press("Run ADC Login (opens browser)")

        wait_for(lambda: self.credentials().get("refresh_token", before) != before,
                 "new credentials")

    def test_quota_projects(self):
        self.write("Quota project ID", CAFE)
        self.press("Set Quota Project")
        self.manager.wait(CAFE, LABEL)
        self.assertEqual(self.credentials()["quota_project_id"], CAFE)

        self.press("Use Active Project as Quota Project")
        self.manager.wait(PROJECT, LABEL)
        self.assertEqual(self.credentials()["quota_project_id"], PROJECT)


class SettingsTest(ManagerTestCase):
    def setUp(self):
        super().setUp()
        self.show("Settings")

    def wait_for_setting(self, name, value):
        wait_for(lambda: self.preferences().get(f"com.veldra.{name}") == value, name)

    def test_launch_at_login(self):
        self.press("Launch at Login", "check box")

        self.wait_for_setting("launchAtLogin", "true")
        self.manager.wait("Launch at Login", "check box", "checked")

    def test_the_display(self):
        self.press("Menubar Display", PICKER)
        self.press("Icon only", ROW)

        self.wait_for_setting("displayFormat", "icon_only")
        picker = self.manager.find("Menubar Display", PICKER)
        wait_for(lambda: picker.description == "Icon only", "the choice")

    def test_the_interval(self):
        self.manager.wait("Refresh interval: 5 min", "spin box").act("Increase")
        self.manager.wait("Refresh interval: 6 min", "spin box").act("Decrease")
        self.manager.wait("Refresh interval: 5 min", "spin box").act("Decrease")

        self.wait_for_setting("refreshInterval", "4")

    def test_the_path(self):
        self.manager.wait(GCLOUD_PATH, FIELD).act("SetFocus")
        self.manager.wait(GCLOUD_PATH, FIELD, "focused")
        self.desktop.key("ctrl+a")
        self.manager.type("/opt/x")

        self.wait_for_setting("gcloudPath", "/opt/x")


if __name__ == "__main__":
    unittest.main()
