# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The demo world: complete, closed to everything of the user's, and gone afterwards."""

import json
import os
import signal
import subprocess
import sys
import unittest
import unittest.mock

import demo
from harness import DEADLINE, Run, run, snapshot, visit

PROGRAM = os.path.join(demo.HERE, "demo.py")


class DemoWorldTest(unittest.TestCase):
    def setUp(self):
        self.world = self.enterContext(demo.DemoWorld(pace="0"))
        self.environment = {**self.world.environment(), "TORVI_DEMO_SIGN_IN_SECONDS": "0"}

    def gcloud(self, *arguments):
        done = run(arguments, self.environment, self.world.gcloud)
        self.assertEqual(done.exit, 0, done.stderr)
        return done.stdout

    def gcloud_json(self, *arguments):
        return json.loads(self.gcloud(*arguments, "--format=json"))

    def credentials(self):
        path = os.path.join(self.world.config, "application_default_credentials.json")
        with open(path, encoding="utf-8") as file:
            return json.load(file)

    def test_it_has_what_it_promises(self):
        accounts = [entry["account"] for entry in self.gcloud_json("auth", "list")]
        robots = [name for name in accounts if name.endswith(".gserviceaccount.com")]
        self.assertEqual((len(accounts), len(robots)), (4, 2))
        self.assertEqual(len(self.gcloud_json("config", "configurations", "list")), 4)
        self.assertEqual(len(self.gcloud_json("projects", "list")), 40)

    def test_pinned_recent_and_saved_things_exist(self):
        projects = {entry["projectId"] for entry in self.gcloud_json("projects", "list")}
        self.assertLessEqual({*demo.PINNED, *demo.RECENT, *demo.SAVED}, projects)
        for project, saved in demo.SAVED.items():
            listed = self.gcloud_json("iam", "service-accounts", "list", f"--project={project}")
            emails = {account["email"] for account in listed}
            self.assertLessEqual({account["email"] for account in saved}, emails)

    def test_every_configuration_works(self):
        for configuration in self.gcloud_json("config", "configurations", "list"):
            self.gcloud("config", "configurations", "activate", configuration["name"])
            self.assertNotEqual(self.gcloud_json("projects", "list"), [])
            self.gcloud("auth", "print-identity-token")

    def test_the_browser_signs_in_by_itself(self):
        os.remove(os.path.join(self.world.config, "application_default_credentials.json"))
        self.gcloud("auth", "application-default", "login", "--quiet")
        self.assertEqual(self.credentials()["quota_project_id"], "larkspur-checkout-prod")

    def test_the_browser_signs_in_whom_it_is_told(self):
        self.environment["TORVI_DEMO_USER"] = demo.MOONLIGHT
        self.gcloud("config", "configurations", "activate", "moonlight")
        self.gcloud("auth", "application-default", "login", "--quiet")
        self.assertEqual(self.credentials()["quota_project_id"], "moonlight-weather")

    def test_without_a_browser_somebody_can_sign_in_by_hand(self):
        del self.environment["BROWSER"]
        arguments = ["auth", "application-default", "login", "--quiet"]
        process = Run(arguments, self.environment, self.world.gcloud)
        self.addCleanup(process.kill)
        visit(process.address(), code="4/by-hand")
        self.assertEqual(process.finish().exit, 0)

    def test_nothing_of_the_users_own_gets_in(self):
        personal = {
            "CLOUDSDK_CORE_PROJECT": "mine",
            "CLOUDSDK_ACTIVE_CONFIG_NAME": "mine",
            "GOOGLE_APPLICATION_CREDENTIALS": "/mine",
            "XDG_CONFIG_HOME": "/mine",
            "BROWSER": "/mine",
        }
        with unittest.mock.patch.dict(os.environ, personal):
            environment = self.world.environment()
        self.assertNotIn("mine", [environment.get(name) for name in personal])
        self.assertNotIn("/mine", environment.values())
        self.assertTrue(environment["XDG_CONFIG_HOME"].startswith(self.world.path))
        self.assertTrue(environment["HOME"].startswith(self.world.path))

    def test_the_preferences_are_for_the_user_only(self):
        files = snapshot(os.path.join(self.world.home, ".config", "torvi"))
        self.assertEqual(files["preferences.ini"]["mode"], 0o600)


class DemoProgramTest(unittest.TestCase):
    def run_demo(self, *command):
        return subprocess.run(
            [sys.executable, PROGRAM, *command],
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=DEADLINE,
            check=False,
        )

    def test_the_program_runs_in_the_world_which_is_gone_afterwards(self):
        done = self.run_demo("--", "sh", "-c", 'gcloud version >&2; echo "$HOME"; test -d "$HOME"')
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("Google Cloud SDK", done.stderr)
        self.assertFalse(os.path.exists(os.path.dirname(done.stdout.strip())))

    def test_it_exits_as_the_program_does(self):
        self.assertEqual(self.run_demo("--", "sh", "-c", "exit 7").returncode, 7)
        self.assertEqual(self.run_demo("--", "sh", "-c", "kill -KILL $$").returncode, 128 + 9)
        self.assertEqual(self.run_demo("--", "/nonexistent").returncode, 127)

    def test_a_wrong_use_is_explained(self):
        done = self.run_demo("torvictl")
        self.assertEqual(done.returncode, 2)
        self.assertIn("demo.py [-- PROGRAM ARGUMENTS...]", done.stderr)

    def test_the_shell_says_what_to_try(self):
        done = self.run_demo()
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("torvictl switch-project", done.stdout)

    def test_a_signal_reaches_the_program_and_the_world_is_removed(self):
        process = subprocess.Popen(
            [sys.executable, PROGRAM, "--", "sh", "-c", 'echo "$HOME"; exec cat'],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        home = process.stdout.readline().strip()
        self.assertTrue(os.path.exists(home))
        process.send_signal(signal.SIGTERM)
        self.assertEqual(process.wait(DEADLINE), 128 + signal.SIGTERM)
        self.assertFalse(os.path.exists(os.path.dirname(home)))
        process.stdin.close()
        process.stdout.close()


if __name__ == "__main__":
    unittest.main()
