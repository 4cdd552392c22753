# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The browser sign-in: what the recordings cannot tell or could only tell with waiting."""

import json
import os
import signal
import socket
import subprocess
import unittest
import urllib.parse

from harness import GCLOUD, Run, Scratch, run, visit
from standin.directory import Directory
from standin.world import new_token

ALEX = "alex.moreno@example.com"
LABS = "alex@labs.example.com"
LOGIN = ["auth", "application-default", "login", "--quiet"]


class SignInTest(unittest.TestCase):
    def setUp(self):
        self.scratch = self.enterContext(Scratch())
        Directory(self.scratch.config).add_configuration("default", core={"account": ALEX})

    def start(self, **environment):
        process = Run(LOGIN, self.scratch.environment(**environment))
        self.addCleanup(process.kill)
        return process

    def start_by_hand(self, **environment):
        return self.start(TORVI_STANDIN_HEADLESS="1", **environment)

    def credentials(self):
        path = os.path.join(self.scratch.config, "application_default_credentials.json")
        with open(path, encoding="utf-8") as file:
            return json.load(file)

    def test_by_hand_needs_neither_display_nor_browser(self):
        process = self.start_by_hand()
        page = visit(process.address(), code="4/any")
        self.assertIn("You are now authenticated", page)
        self.assertEqual(process.finish().exit, 0)
        self.assertEqual(self.credentials()["type"], "authorized_user")

    def test_the_address_is_one_write_and_has_everything_in_it(self):
        process = self.start_by_hand()
        address = urllib.parse.urlsplit(process.address())
        fields = dict(urllib.parse.parse_qsl(address.query))
        self.assertEqual(address.netloc, "accounts.google.com")
        self.assertRegex(fields["redirect_uri"], r"^http://localhost:8\d{3}/$")
        self.assertEqual((len(fields["state"]), len(fields["code_challenge"])), (30, 43))
        self.assertEqual(len(self.scratch.writes("stderr")), 1)

    def test_the_code_says_who_signs_in(self):
        process = self.start_by_hand(CLOUDSDK_CORE_PROJECT="labs-sandbox-7731")
        visit(process.address(), code=new_token("code", LABS))
        self.assertEqual(process.finish().exit, 0)
        self.assertEqual(self.credentials()["quota_project_id"], "labs-sandbox-7731")
        self.assertEqual(self.scratch.requests()[-1]["account"], LABS)

    def test_a_taken_port_moves_the_sign_in_to_the_next_one(self):
        first, second = self.start_by_hand(), self.start_by_hand()
        ports = {_port(first.address()), _port(second.address())}
        self.assertEqual(len(ports), 2)
        visit(second.address(), code="4/any")
        self.assertEqual(second.finish().exit, 0)
        self.assertTrue(first.is_running())

    def test_the_port_is_free_after_the_end(self):
        process = self.start_by_hand()
        port = _port(process.address())
        process.send(signal.SIGTERM)
        self.assertEqual(process.wait(), -signal.SIGTERM)
        with socket.socket() as probe, self.assertRaises(ConnectionRefusedError):
            probe.connect(("127.0.0.1", port))

    def test_a_wrong_state_is_refused(self):
        process = self.start_by_hand()
        visit(process.address(), code="4/any", state="wrong")
        done = process.finish()
        self.assertEqual(done.exit, 1)
        self.assertIn("(mismatching_state) CSRF Warning!", done.stderr)

    def test_the_page_without_a_code_says_that_it_failed(self):
        page = visit(self.start_by_hand().address(), error="access_denied")
        self.assertIn("did not complete successfully", page)

    def test_a_blocking_browser_delays_the_address(self):
        fifo = self.scratch.file("fifo")
        os.mkfifo(fifo)
        browser = self.scratch.script("browser", f"echo at work; read line < {fifo}\n")
        process = self.start(DISPLAY=":99", BROWSER=browser)
        self.assertEqual(process.read("stdout", 100), b"at work\n")
        self.assertEqual(self.scratch.writes("stderr"), [])
        with open(fifo, "w", encoding="utf-8") as file:
            file.write("go on\n")
        visit(process.address(), code="4/any")
        self.assertEqual(process.finish().exit, 0)

    def test_a_browser_that_stays_holds_the_pipes(self):
        fifo = self.scratch.file("fifo")
        os.mkfifo(fifo)
        browser = self.scratch.script("browser", f"(read line < {fifo}; echo closed) &\n")
        process = self.start(DISPLAY=":99", BROWSER=browser)
        visit(process.address(), code="4/any")
        self.assertEqual(process.wait(), 0)
        with open(fifo, "w", encoding="utf-8") as file:
            file.write("go on\n")
        self.assertEqual(process.finish().stdout, "closed\n")

    def test_the_browser_gets_the_address_where_it_asks_for_it(self):
        browser = self.scratch.script("browser", 'echo "$1 $2"\n')
        process = self.start(DISPLAY=":99", BROWSER=f"/nonexistent:{browser} --open=%s")
        address = process.address()
        process.send(signal.SIGTERM)
        self.assertEqual(process.finish().stdout, f"--open={address} \n")

    def test_a_failing_browser_leaves_it_to_the_desktops_opener(self):
        opener = self.scratch.script("opener", "echo \"cannot open '$1'\" >&2\n")
        process = self.start(DISPLAY=":99", BROWSER="false", TORVI_STANDIN_OPENER=opener)
        address = process.address()
        visit(address, error="access_denied")
        self.assertIn(f"cannot open '{address}'\n", process.finish().stderr)

    def test_without_a_display_a_typed_code_is_taken(self):
        done = subprocess.run(
            [GCLOUD, *LOGIN],
            env=self.scratch.environment(),
            input=b"4/any\n",
            capture_output=True,
            check=True,
        )
        self.assertIn(b"Go to the following link", done.stderr)
        self.assertEqual(self.credentials()["type"], "authorized_user")

    def test_impersonation_of_the_configuration_is_used_for_an_empty_flag_too(self):
        command = ["config", "set", "auth/impersonate_service_account", "robot@x.example"]
        run(command, self.scratch.environment())
        process = Run(
            [*LOGIN[:-1], "--impersonate-service-account=", "--quiet"],
            self.scratch.environment(TORVI_STANDIN_HEADLESS="1"),
        )
        self.addCleanup(process.kill)
        visit(process.address(), code="4/any")
        self.assertEqual(process.finish().exit, 0)
        self.assertEqual(self.credentials()["type"], "impersonated_service_account")


def _port(address):
    fields = dict(urllib.parse.parse_qsl(urllib.parse.urlsplit(address).query))
    return urllib.parse.urlsplit(fields["redirect_uri"]).port


if __name__ == "__main__":
    unittest.main()
