# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Quota projects and impersonation where the recordings are silent; the texts are gcloud's own."""

import json
import os
import unittest

from harness import Scratch, run
from standin.directory import Directory, user_adc

ALEX = "alex.moreno@example.com"
LABS = "alex@labs.example.com"
READER = "report-reader@orchid-prod-4821.iam.gserviceaccount.com"
PROD = "orchid-prod-4821"
STAGING = "orchid-staging-4821"
SET_QUOTA = ["auth", "application-default", "set-quota-project"]


class CredentialsTest(unittest.TestCase):
    def setUp(self):
        self.scratch = self.enterContext(Scratch())
        self.directory = Directory(self.scratch.config)
        self.directory.add_user(ALEX)
        self.directory.add_configuration("default", core={"account": ALEX, "project": PROD})
        self.directory.add_configuration("empty")
        self.directory.add_configuration(
            "acting", core={"account": ALEX}, auth={"impersonate_service_account": READER}
        )

    def run_gcloud(self, *arguments, **environment):
        return run(arguments, self.scratch.environment(**environment))

    def quota_project(self):
        path = os.path.join(self.scratch.config, "application_default_credentials.json")
        with open(path, encoding="utf-8") as file:
            return json.load(file).get("quota_project_id")

    def test_a_quota_project_is_asked_for_as_the_impersonated_account(self):
        self.directory.activate("acting")
        self.directory.write_adc(user_adc(ALEX))
        done = self.run_gcloud(*SET_QUOTA, STAGING)
        self.assertEqual(done.exit, 0, done.stderr)
        self.assertEqual(done.stderr.count("WARNING: This command is using"), 2)
        self.assertEqual(self.scratch.requests()[-1]["account"], READER)
        self.assertEqual(self.quota_project(), STAGING)

    def test_credentials_that_may_not_impersonate_lose_their_quota_project(self):
        self.directory.activate("acting")
        self.directory.write_adc(user_adc(LABS, PROD))
        done = self.run_gcloud(*SET_QUOTA, STAGING)
        self.assertEqual(done.exit, 1)
        self.assertIn("specified by the [auth/credential_file_override] property", done.stderr)
        self.assertIsNone(self.quota_project())

    def test_without_any_project_a_refusal_leaves_no_quota_project(self):
        self.directory.activate("empty")
        self.directory.write_adc(user_adc(ALEX))
        done = self.run_gcloud(*SET_QUOTA, "orchid-data-4821")
        self.assertEqual(done.exit, 1)
        self.assertTrue(done.stderr.startswith("WARNING: Cannot find a project to insert into"))
        self.assertIsNone(self.quota_project())

    def test_a_refusal_without_an_account_names_none(self):
        self.directory.activate("empty")
        self.directory.write_adc(user_adc(ALEX, PROD))
        done = self.run_gcloud(*SET_QUOTA, "unheard-of")
        self.assertIn("[None] does not have permission", done.stderr)
        self.assertIn("authenticated as None which", done.stderr)

    def test_a_refusal_names_the_impersonated_account(self):
        self.directory.activate("acting")
        done = self.run_gcloud("config", "set", "project", "unheard-of")
        self.assertEqual(done.exit, 0)
        self.assertIn(f"WARNING: [{READER}] does not have permission", done.stderr)
        self.assertIn(f"Impersonation is used to impersonate {READER}\n", done.stderr)

    def test_an_empty_impersonation_is_none(self):
        self.run_gcloud("config", "set", "auth/impersonate_service_account", "")
        done = self.run_gcloud("projects", "list", "--format=json")
        self.assertEqual((done.exit, done.stderr), (0, ""))

    def test_setting_the_account_opens_the_databases(self):
        os.remove(os.path.join(self.scratch.config, "credentials.db"))
        self.run_gcloud("config", "set", "account", "stranger@example.com")
        for name in ("credentials.db", "access_tokens.db", "default_configs.db"):
            self.assertTrue(os.path.exists(os.path.join(self.scratch.config, name)), name)

    def test_the_order_of_the_warnings(self):
        self.directory.write_adc(user_adc(ALEX))
        name = "CLOUDSDK_CORE_PROJECT"
        done = self.run_gcloud("config", "set", "project", "unheard-of", **{name: STAGING})
        warnings = [line[:22] for line in done.stderr.splitlines() if line.startswith("WARNING")]
        self.assertEqual(
            warnings,
            ["WARNING: Your active p", "WARNING: [alex.moreno@", "WARNING: Property [pro"],
        )


if __name__ == "__main__":
    unittest.main()
