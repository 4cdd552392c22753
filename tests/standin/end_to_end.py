# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Every command of torvictl in the demo world; what it did is asked of `torvictl status --json`.

TORVICTL names the program.
"""

import json
import os
import signal
import unittest

import demo
from harness import Run, run, visit

TORVICTL = os.environ["TORVICTL"]

CHECKOUT = "larkspur-checkout-prod"
CAFE = "larkspur-cafe-fr"
CHECKOUT_READER = f"report-reader@{CHECKOUT}.iam.gserviceaccount.com"
UNKNOWN = "stranger@larkspur-ci.iam.gserviceaccount.com"


class EndToEndTest(unittest.TestCase):
    """A world for each test, signed in, with `default` active."""

    maxDiff = None

    def setUp(self):
        self.world = self.enterContext(demo.DemoWorld(pace="0"))
        self.environment = {**self.world.environment(), "TORVI_DEMO_SIGN_IN_SECONDS": "0"}

    def start(self, *arguments, **environment):
        process = Run(arguments, {**self.environment, **environment}, TORVICTL)
        self.addCleanup(process.kill)
        return process

    def torvictl(self, *arguments, **environment):
        """Runs torvictl, which must succeed, and returns its standard output."""
        done = self.start(*arguments, **environment).finish()
        self.assertEqual(done.exit, 0, done.stderr)
        return done.stdout

    def failing_torvictl(self, *arguments, **environment):
        """Runs torvictl, which must fail, and returns what it says."""
        done = self.start(*arguments, **environment).finish()
        self.assertEqual(done.exit, 1, done.stderr)
        return done.stderr

    def json(self, *arguments):
        return json.loads(self.torvictl(*arguments, "--json"))

    def status(self):
        return self.json("status")

    def context(self):
        return self.status()["currentContext"]

    def active(self):
        """Returns (configuration, account, project) in force, by their names."""
        context = self.context()
        parts = (context["activeConfiguration"], context["activeAccount"], context["activeProject"])
        configuration, account, project = parts
        return (
            configuration and configuration["name"],
            account and account["email"],
            project and project["id"],
        )

    def impersonated(self):
        """Returns the e-mail of the service account that gcloud acts as, or None."""
        account = self.context()["impersonatedServiceAccount"]
        return account and account["email"]

    def adc(self):
        return self.context()["adcState"]

    def credentials(self):
        path = os.path.join(self.world.config, "application_default_credentials.json")
        with open(path, encoding="utf-8") as file:
            return json.load(file)

    def stored(self):
        path = os.path.join(self.world.home, ".config", "torvi", "preferences.ini")
        with open(path, encoding="utf-8") as file:
            return file.read()


class StateTest(EndToEndTest):
    def test_status_shows_the_world_without_starting_gcloud(self):
        journal = os.path.join(self.world.path, "journal")
        status = json.loads(self.torvictl("status", "--json", TORVI_STANDIN_JOURNAL=journal))
        self.assertFalse(os.path.exists(journal))
        self.assertFalse(os.path.exists(os.path.join(self.world.config, "logs")))
        self.assertIsNone(status["lastError"])
        self.assertEqual(self.active(), ("default", demo.MIRA, CHECKOUT))
        emails = {account["email"]: account["accountType"] for account in status["accounts"]}
        self.assertEqual(
            emails,
            {
                demo.MIRA: "USER",
                demo.MOONLIGHT: "USER",
                demo.DEPLOYER: "SERVICE_ACCOUNT",
                demo.READER: "SERVICE_ACCOUNT",
            },
        )
        names = [configuration["name"] for configuration in status["configurations"]]
        self.assertEqual(names, ["default", "moonlight", "reports", "robot"])
        self.assertEqual(self.adc()["quotaProject"], CHECKOUT)

    def test_projects_are_all_there_with_their_names(self):
        projects = {project["id"]: project["name"] for project in self.json("projects")}
        self.assertEqual(len(projects), 40)
        self.assertEqual(projects["larkspur-customers-ae"], "طلبات العملاء")

    def test_locate_finds_the_stand_in(self):
        self.assertEqual(self.torvictl("locate"), self.world.gcloud + "\n")

    def test_the_identity_token_is_one_line(self):
        token = self.torvictl("identity-token")
        self.assertRegex(token, r"^[-\w]+\.[-\w]+\.[-\w]+\n$")

    def test_service_accounts_of_a_project(self):
        accounts = self.json("service-accounts", CHECKOUT)
        self.assertEqual(len(accounts), 4)
        self.assertEqual(accounts[0]["displayName"], "Deployment robot")
        self.assertEqual(self.json("service-accounts", "larkspur-payments-prod"), [])

    def test_watch_tells_of_a_change_from_outside(self):
        process = self.start("watch", "--json")
        self.assertEqual(_next_project(process), CHECKOUT)
        arguments = ["config", "configurations", "activate", "moonlight"]
        self.assertEqual(run(arguments, self.environment, self.world.gcloud).exit, 0)
        while _next_project(process) != "moonlight-weather":
            pass
        process.send(signal.SIGINT)
        self.assertEqual(process.finish().exit, 130)


class ChangeTest(EndToEndTest):
    def test_switch_project(self):
        self.assertEqual(self.torvictl("switch-project", CAFE), "")
        self.assertEqual(self.active(), ("default", demo.MIRA, CAFE))
        self.assertEqual(self.json("recents")[0], CAFE)

    def test_switch_account(self):
        self.assertEqual(self.torvictl("switch-account", demo.MOONLIGHT), "")
        self.assertEqual(self.active(), ("default", demo.MOONLIGHT, CHECKOUT))

    def test_activate_configuration(self):
        self.assertEqual(self.torvictl("activate-configuration", "moonlight"), "")
        self.assertEqual(self.active(), ("moonlight", demo.MOONLIGHT, "moonlight-weather"))

    def test_activate_configuration_that_impersonates(self):
        self.torvictl("activate-configuration", "reports")
        self.assertEqual(self.impersonated(), demo.READER)
        ids = [project["id"] for project in self.json("projects")]
        expected = ["larkspur-data-lake", "larkspur-data-warehouse", "larkspur-sales-reports-ua"]
        self.assertEqual(ids, expected)

    def test_create_and_delete_configuration(self):
        self.torvictl("create-configuration", "fresh")
        self.assertEqual(self.active(), ("fresh", None, None))
        self.assertIn("active", self.failing_torvictl("delete-configuration", "fresh"))
        self.torvictl("activate-configuration", "default")
        self.torvictl("delete-configuration", "fresh")
        names = [configuration["name"] for configuration in self.status()["configurations"]]
        self.assertEqual(names, ["default", "moonlight", "reports", "robot"])

    def test_set_quota_project(self):
        self.torvictl("set-quota-project", "larkspur-ci")
        self.assertEqual(self.adc()["quotaProject"], "larkspur-ci")

    def test_a_refused_quota_project_leaves_the_old_one(self):
        message = self.failing_torvictl("set-quota-project", "larkspur-secrets")
        self.assertIn("serviceusage.services.use", message)
        self.assertEqual(self.adc()["quotaProject"], CHECKOUT)


class SignInTest(EndToEndTest):
    def test_the_browser_signs_in(self):
        self.torvictl("clear-impersonation", "--mode", "adcOnly")
        self.assertEqual(self.adc()["type"], "none")
        self.assertEqual(self.torvictl("adc-login"), "")
        state = self.adc()
        self.assertEqual((state["type"], state["quotaProject"]), ("authorized_user", CHECKOUT))

    def test_somebody_signs_in_by_hand_with_the_address_on_standard_error(self):
        del self.environment["BROWSER"]
        process = self.start("adc-login")
        visit(process.address(), code="4/by-hand")
        self.assertEqual(process.finish().exit, 0)

    def test_an_address_in_pieces_does_not_disturb_the_sign_in(self):
        self.torvictl("adc-login", TORVI_STANDIN_FAULT="split:200")
        self.assertEqual(self.adc()["type"], "authorized_user")

    def test_a_cancelled_sign_in_changes_nothing(self):
        before = self.credentials()
        del self.environment["BROWSER"]
        process = self.start("adc-login")
        visit(process.address(), error="access_denied")
        done = process.finish()
        self.assertEqual(done.exit, 1)
        self.assertIn("missing_code", done.stderr)
        self.assertEqual(self.credentials(), before)

    def test_an_interrupt_ends_the_sign_in_and_frees_its_port(self):
        del self.environment["BROWSER"]
        process = self.start("adc-login")
        address = process.address()
        process.send(signal.SIGINT)
        self.assertEqual(process.finish().exit, 130)
        with self.assertRaises(OSError):
            visit(address, code="4/too-late")


class ImpersonationTest(EndToEndTest):
    def impersonate(self, email, mode):
        self.torvictl("impersonate", email, "--mode", mode)

    def assert_impersonated(self, by_cli, by_adc):
        self.assertEqual(self.impersonated(), by_cli)
        url = self.credentials().get("service_account_impersonation_url", "")
        self.assertEqual(f"/{by_adc}:generateAccessToken" in url, by_adc is not None)

    def test_adc_only_is_the_default(self):
        self.torvictl("impersonate", CHECKOUT_READER)
        self.assert_impersonated(None, CHECKOUT_READER)

    def test_cli_only(self):
        self.impersonate(CHECKOUT_READER, "cliOnly")
        self.assert_impersonated(CHECKOUT_READER, None)
        self.assertEqual(self.adc()["type"], "authorized_user")

    def test_both(self):
        self.impersonate(CHECKOUT_READER, "both")
        self.assert_impersonated(CHECKOUT_READER, CHECKOUT_READER)

    def test_clearing_each(self):
        self.impersonate(CHECKOUT_READER, "both")
        self.torvictl("clear-impersonation", "--mode", "cliOnly")
        self.assert_impersonated(None, CHECKOUT_READER)
        self.torvictl("clear-impersonation")
        self.assertEqual(self.adc()["type"], "none")

    def test_clearing_both(self):
        self.impersonate(CHECKOUT_READER, "both")
        self.torvictl("clear-impersonation", "--mode", "both")
        self.assertIsNone(self.impersonated())
        self.assertEqual(self.adc()["type"], "none")

    def test_an_account_that_may_not_be_impersonated_fails_later(self):
        self.impersonate(UNKNOWN, "cliOnly")
        self.assertIn("Failed to impersonate", self.failing_torvictl("projects"))


class PreferencesTest(EndToEndTest):
    def test_saved_accounts(self):
        saved = self.json("saved-accounts", CHECKOUT)
        self.assertEqual([account["displayName"] for account in saved], ["Deployments", None])
        self.torvictl("save-account", UNKNOWN, "--project", CHECKOUT, "--label", "Ünknown")
        self.assertEqual(self.json("saved-accounts", CHECKOUT)[-1]["displayName"], "Ünknown")
        self.torvictl("forget-account", demo.DEPLOYER, "--project", CHECKOUT)
        emails = [account["email"] for account in self.json("saved-accounts", CHECKOUT)]
        self.assertEqual(emails, [CHECKOUT_READER, UNKNOWN])
        # What the demo world wrote in other projects is read and kept.
        label = self.json("saved-accounts", "larkspur-data-warehouse")[0]["displayName"]
        self.assertEqual(label, "Звіти")

    def test_recents(self):
        self.assertEqual(self.json("recents"), demo.RECENT)

    def test_pins(self):
        self.torvictl("unpin", CHECKOUT)
        self.torvictl("pin", "x7")
        pinned = sorted({*demo.PINNED, "x7"} - {CHECKOUT})
        self.assertIn(f"com.veldra.favorites={', '.join(pinned)}\n", self.stored())

    def test_settings(self):
        self.assertEqual(self.json("settings")["gcloudPathOverride"], self.world.gcloud)
        self.torvictl("settings", "set", "refreshIntervalMinutes", "7")
        self.torvictl("settings", "set", "launchAtLogin", "true")
        self.torvictl("settings", "set", "gcloudPathOverride", "")
        settings = self.json("settings")
        self.assertEqual(settings["refreshIntervalMinutes"], 7)
        self.assertTrue(settings["launchAtLogin"])
        self.assertIsNone(settings["gcloudPathOverride"])


class FaultTest(EndToEndTest):
    """gcloud fails in every way that the stand-in knows, and torvictl neither hangs nor lies."""

    def test_without_a_network(self):
        message = self.failing_torvictl("projects", TORVI_STANDIN_FAULT="offline")
        self.assertIn("Failed to resolve", message)
        self.failing_torvictl("switch-project", CAFE, TORVI_STANDIN_FAULT="offline")
        self.assertEqual(self.active(), ("default", demo.MIRA, CHECKOUT))
        self.assertEqual(self.json("recents"), demo.RECENT)

    def test_credentials_that_have_expired(self):
        os.remove(os.path.join(self.world.config, "access_tokens.db"))
        message = self.failing_torvictl("projects", TORVI_STANDIN_FAULT="expired")
        self.assertIn("Token has been expired or revoked", message)

    def test_half_a_list_of_projects(self):
        self.failing_torvictl("projects", TORVI_STANDIN_FAULT="half")

    def test_a_list_that_is_no_utf8(self):
        self.failing_torvictl("projects", TORVI_STANDIN_FAULT="utf8")

    def test_a_death_in_the_middle_of_a_list(self):
        self.failing_torvictl("projects", TORVI_STANDIN_FAULT="die:KILL")

    def test_a_silent_failure(self):
        self.failing_torvictl("switch-project", CAFE, TORVI_STANDIN_FAULT="exit:3")

    def test_a_flood_before_the_list(self):
        self.failing_torvictl("projects", TORVI_STANDIN_FAULT="flood:20")

    def test_a_grandchild_that_holds_the_pipes(self):
        projects = self.torvictl("projects", "--json", TORVI_STANDIN_FAULT="grandchild")
        self.assertEqual(len(json.loads(projects)), 40)

    def test_a_hanging_gcloud_is_ended_by_an_interrupt(self):
        journal = os.path.join(self.world.path, "journal")
        process = self.start(
            "adc-login", TORVI_STANDIN_FAULT="hang@end", TORVI_STANDIN_JOURNAL=journal
        )
        process.address()
        process.send(signal.SIGINT)
        self.assertEqual(process.finish().exit, 130)

    def test_an_erased_quota_project_is_seen(self):
        fault = {"TORVI_STANDIN_FAULT": "die:KILL@request"}
        self.failing_torvictl("set-quota-project", "larkspur-ci", **fault)
        self.assertIsNone(self.adc()["quotaProject"])


def _next_project(process):
    """Waits for the next line of `watch --json` and returns its active project."""
    line = b""
    while not line.endswith(b"\n"):
        piece = process.read("stdout", 1)
        if not piece:
            raise AssertionError("torvictl has stopped watching")
        line += piece
    project = json.loads(line)["currentContext"]["activeProject"]
    return project and project["id"]


if __name__ == "__main__":
    unittest.main()
