# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Torvi on a desktop over the real gcloud; the output tells what is done and what gcloud answers."""

import base64
import json
import os
import shutil
import subprocess
import unittest

from desktop import wait_for
from signed_in_world import SignedInWorld
from world_test_case import WorldTestCase

TORVICTL = os.environ.get("TORVICTL", "")


class RealGCloudTestCase(WorldTestCase):
    """Tests with a signed-in world and a Torvi of their own."""

    @classmethod
    def setUpClass(cls):
        missing = [name for name in ("gcloud", "openssl") if not shutil.which(name)]
        if missing:
            raise unittest.SkipTest("not installed: " + ", ".join(missing))
        super().setUpClass()

    def setUp(self):
        super().setUp()
        world = self.enterContext(SignedInWorld())
        self.addCleanup(lambda: self.assertEqual(world.google.unknown_requests(), []))
        for arguments in self.preparations(world):
            subprocess.run([TORVICTL, *arguments], env=world.environment(), check=True)
        self.tell(f"--- {self.id().rpartition('.')[2]}")
        self.launch(world, world.environment())

    def preparations(self, world):
        """What torvictl does before Torvi starts."""
        return [("settings", "set", "gcloudPathOverride", world.gcloud)]

    # The transcript

    def tell(self, text):
        print(text, flush=True)

    def step(self, what):
        """Tells what is about to be done."""
        wait_for(self.world.is_at_rest, "the end of every gcloud")
        self._ran = len(self.world.lines("runs"))
        self.tell(f"  {what}")

    def runs(self):
        """The arguments of each gcloud that has begun in this step."""
        return self.world.lines("runs")[self._ran:]

    def done(self):
        """Tells what Torvi ran in this step, once that has ended."""
        wait_for(self.world.is_at_rest, "the end of every gcloud")
        for run in self.runs():
            self.tell(f"      Torvi ran: gcloud {run}")

    # What happened

    def check(self, expected, *arguments):
        """Asks gcloud, which must print that."""
        answer = self.ask_gcloud(*arguments)
        shown = answer.replace("\n", ", ") or "(nothing)"
        self.tell(f"      gcloud {' '.join(arguments)}: {shown}")
        self.assertEqual(answer, expected)

    def check_property(self, name, expected):
        """`expected` is empty for a property that is not set."""
        self.check(expected, "config", "list", f"--format=value({name.replace('/', '.')})")

    def check_credentials_of(self, expected):
        """Asks gcloud whose access token the application default credentials are good for."""
        token = self.ask_gcloud("auth", "application-default", "print-access-token")
        owner = json.loads(_decoded(token.split(".")[1]))
        self.tell(f"      gcloud auth application-default print-access-token: a token of {owner}")
        self.assertEqual(owner, expected)

    def check_credentials_impersonate(self, expected):
        """The same where the CLI impersonates too, which gcloud would answer for: by the file."""
        address = self.credentials()["service_account_impersonation_url"]
        self.tell(f"      application_default_credentials.json: {address}")
        self.assertTrue(address.endswith(f"/{expected}:generateAccessToken"), address)

    def check_no_credentials(self):
        """Asks for the file that gcloud keeps the application default credentials in."""
        self.assertEqual(self.credentials(), {})
        self.tell("      application_default_credentials.json: is gone")

    def check_quota_project(self, expected):
        answer = self.credentials().get("quota_project_id")
        self.tell(f"      application_default_credentials.json: quota_project_id {answer}")
        self.assertEqual(answer, expected)

    def check_clipboard(self):
        """The address that gcloud opened in the browser must be on it."""
        address, = self.world.lines("addresses")
        self.assertTrue(address.startswith("https://accounts.google.com/o/oauth2/auth?"), address)
        wait_for(lambda: self.desktop.clipboard() == address, "the address on the clipboard")
        self.tell(f"      on the clipboard: {address}")

    def ask_torvictl(self, *arguments):
        return json.loads(subprocess.run([TORVICTL, *arguments, "--json"], env=self.environment,
                                         stdout=subprocess.PIPE, check=True).stdout)


def claims_of(token):
    """What an identity token says."""
    return json.loads(_decoded(token.split(".")[1]))


def _decoded(text):
    return base64.urlsafe_b64decode(text + "=" * (-len(text) % 4))
