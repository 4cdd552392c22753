# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Command lines: what is understood, and what gcloud says of the others."""

import unittest

from harness import Scratch, run
from standin import arguments
from standin.errors import UsageError


class ArgumentsTest(unittest.TestCase):
    def parse(self, *argv):
        return arguments.parse(arguments.find(list(argv)), list(argv))

    def assertRefused(self, expected, *argv):
        with self.assertRaises(UsageError) as caught:
            self.parse(*argv)
        self.assertTrue(caught.exception.message.startswith(expected), caught.exception.message)

    def test_flags_are_understood_with_and_without_an_equals_sign(self):
        for flag in (["--configuration=labs"], ["--configuration", "labs"]):
            found = self.parse("config", "list", *flag, "--format", "json")
            self.assertEqual(found, {"--configuration": "labs"})

    def test_an_empty_value_is_a_value(self):
        self.assertEqual(self.parse("config", "set", "project", "")["VALUE"], "")
        self.assertEqual(self.parse("config", "list", "--configuration=")["--configuration"], "")

    def test_what_follows_two_hyphens_is_no_flag(self):
        self.assertEqual(self.parse("config", "set", "account", "--", "-x")["VALUE"], "-x")

    def test_flags_may_stand_between_the_values(self):
        found = self.parse("config", "set", "account", "--quiet", "x@y")
        self.assertEqual(found["VALUE"], "x@y")

    def test_several_names_can_be_deleted(self):
        found = self.parse("config", "configurations", "delete", "a", "b", "--quiet")
        self.assertEqual(found["CONFIGURATION_NAMES"], ["a", "b"])

    def test_missing_values(self):
        self.assertRefused("argument VALUE: Must be specified.\nUsage: ", "config", "set", "a")
        self.assertRefused(
            "argument CONFIGURATION_NAMES [CONFIGURATION_NAMES ...]: Must be specified.\n",
            "config",
            "configurations",
            "delete",
            "--quiet",
        )
        self.assertRefused(
            "argument --sort-by: expected one argument\n", "projects", "list", "--sort-by"
        )

    def test_values_and_flags_that_nobody_asked_for(self):
        self.assertRefused("unrecognized arguments: c \n", "config", "set", "a", "b", "c")
        self.assertRefused("unrecognized arguments: -x \n", "config", "set", "project", "-x")
        self.assertRefused("unrecognized arguments: --nope \n", "auth", "list", "--nope")

    def test_a_wrong_command_line_exits_with_two(self):
        with Scratch() as scratch:
            done = run(["config", "set", "project"], scratch.environment())
            self.assertEqual(done.exit, 2)
            self.assertIn("ERROR: (gcloud.config.set) argument VALUE", done.stderr)
            done = run(["compute", "instances", "list"], scratch.environment())
            self.assertEqual(done.exit, 2)
            self.assertIn("it plays only:", done.stderr)


if __name__ == "__main__":
    unittest.main()
