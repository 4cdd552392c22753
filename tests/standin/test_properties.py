# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Properties and configurations where the recordings are silent; the texts are gcloud's own."""

import json
import os
import unittest

from harness import Scratch, run
from standin.directory import Directory

NEVER_A_PROJECT = "The project property must be set to a valid project ID, "


class PropertiesTest(unittest.TestCase):
    def setUp(self):
        self.scratch = self.enterContext(Scratch())
        self.directory = Directory(self.scratch.config)
        self.directory.add_configuration("default", core={"project": "one"})
        self.directory.add_configuration("labs", core={"project": "two"})

    def run_gcloud(self, *arguments, **environment):
        return run(arguments, self.scratch.environment(**environment))

    def path(self, *names):
        return os.path.join(self.scratch.config, *names)

    def read(self, *names):
        with open(self.path(*names), encoding="utf-8", newline="") as file:
            return file.read()

    def write(self, text, *names):
        with open(self.path(*names), "w", encoding="utf-8", newline="") as file:
            file.write(text)

    def properties(self, *arguments, **environment):
        done = self.run_gcloud("config", "list", "--format=json", *arguments, **environment)
        return json.loads(done.stdout)

    def test_percent_signs_are_doubled_in_the_file_only(self):
        self.run_gcloud("config", "set", "account", "per%cent")
        self.assertIn("account = per%%cent\n", self.read("configurations", "config_default"))
        self.assertEqual(self.properties()["core"]["account"], "per%cent")

    def test_unset_leaves_the_empty_section(self):
        self.run_gcloud("config", "unset", "project")
        self.assertEqual(self.read("configurations", "config_default"), "[core]\n\n")

    def test_an_empty_variable_counts_as_set(self):
        self.assertEqual(self.properties(CLOUDSDK_CORE_PROJECT="")["core"]["project"], "")

    def test_the_variable_for_the_configuration_wins_unless_it_is_empty(self):
        name = "CLOUDSDK_ACTIVE_CONFIG_NAME"
        self.assertEqual(self.properties(**{name: "labs"})["core"]["project"], "two")
        self.assertEqual(self.properties(**{name: ""})["core"]["project"], "one")

    def test_set_writes_to_the_configuration_of_the_variable(self):
        done = self.run_gcloud("config", "set", "account", "a", CLOUDSDK_ACTIVE_CONFIG_NAME="labs")
        self.assertEqual(done.exit, 0)
        self.assertIn("account = a", self.read("configurations", "config_labs"))
        self.assertEqual(self.read("active_config"), "default")

    def test_nothing_is_set_where_no_configuration_is_active(self):
        self.run_gcloud("config", "configurations", "activate", "NONE")
        done = self.run_gcloud("config", "set", "account", "a")
        self.assertEqual(done.exit, 1)
        self.assertIn("Properties in configuration [NONE] cannot be set.", done.stderr)
        self.assertEqual(self.properties(), {})

    def test_a_deleted_active_configuration_has_no_properties(self):
        self.write("gone", "active_config")
        self.assertEqual(self.properties(), {})
        done = self.run_gcloud("config", "set", "account", "a")
        expected = "Cannot set property in configuration [gone], it does not exist."
        self.assertIn(expected, done.stderr)

    def test_a_line_feed_in_active_config_belongs_to_the_name(self):
        self.write("labs\n", "active_config")
        self.assertEqual(self.properties(), {})

    def test_an_empty_active_config_means_default(self):
        self.write("", "active_config")
        self.assertEqual(self.properties()["core"]["project"], "one")
        self.assertEqual(self.read("active_config"), "")

    def test_an_impossible_name_in_active_config_erases_the_default_configuration(self):
        self.write("Bad Name", "active_config")
        self.assertEqual(self.properties(), {})
        self.assertEqual(self.read("active_config"), "default")
        self.assertEqual(self.read("configurations", "config_default"), "")

    def test_a_missing_active_config_erases_the_default_configuration(self):
        os.remove(self.path("active_config"))
        self.assertEqual(self.properties(), {})
        self.assertEqual(self.read("active_config"), "default")

    def test_nothing_is_erased_when_active_config_is_not_asked(self):
        os.remove(self.path("active_config"))
        self.properties("--configuration=labs")
        self.properties(CLOUDSDK_ACTIVE_CONFIG_NAME="labs")
        self.assertFalse(os.path.exists(self.path("active_config")))
        self.assertIn("one", self.read("configurations", "config_default"))

    def test_what_is_no_text_stops_every_command(self):
        with open(self.path("active_config"), "wb") as file:
            file.write(b"\xff")
        done = self.run_gcloud("version", "--format=json")
        self.assertEqual(done.exit, 1)
        self.assertIn("'utf-8' codec can't decode byte 0xff", done.stderr)

    def test_a_missing_directory_is_made(self):
        elsewhere = os.path.join(self.scratch.path, "a", "b")
        self.assertEqual(self.properties(CLOUDSDK_CONFIG=elsewhere), {})
        self.assertTrue(os.path.exists(os.path.join(elsewhere, "configurations", "config_default")))

    def test_without_a_variable_the_directory_is_below_home(self):
        environment = self.scratch.environment()
        del environment["CLOUDSDK_CONFIG"]
        run(["version", "--format=json"], environment)
        expected = os.path.join(self.scratch.path, ".config", "gcloud", "active_config")
        self.assertTrue(os.path.exists(expected))

    def test_files_with_other_names_are_no_configurations(self):
        for name in ("config_Bad", "config_a_b", "config_", "labs"):
            self.write("", "configurations", name)
        done = self.run_gcloud("config", "configurations", "list", "--format=json")
        names = [configuration["name"] for configuration in json.loads(done.stdout)]
        self.assertEqual(names, ["default", "labs"])

    def test_creating_leaves_the_variable_in_force(self):
        name = {"CLOUDSDK_ACTIVE_CONFIG_NAME": "labs"}
        self.run_gcloud("config", "configurations", "create", "fresh", **name)
        self.assertEqual(self.read("active_config"), "fresh")
        self.assertEqual(self.properties(**name)["core"]["project"], "two")

    def test_project_ids(self):
        for project, complaint in {
            "a": None,
            "1a": None,
            "123": None,
            "x.com:a": None,
            "a" * 63: None,
            "a" * 64: f"[{'a' * 64}] is not a valid project ID.",
            "a-": "[a-] is not a valid project ID.",
            "a_b": "[a_b] is not a valid project ID.",
            "a.b": "[a.b] is not a valid project ID.",
            "ä": "[ä] is not a valid project ID.",
            "a:b:c": "[a:b:c] is not a valid project ID.",
            "google.com:A": "[google.com:A] is not a valid project ID.",
            "A": "not the project name [A]",
            "A.b": "not the project name [A.b]",
            "a'b": "not the project name [a'b]",
            "a!": "not the project name [a!]",
            "ä b": "not the project name [ä b]",
        }.items():
            with self.subTest(project=project):
                done = self.run_gcloud("config", "set", "project", project)
                first = done.stderr.splitlines()[0]
                if complaint is None:
                    self.assertEqual(first, "Updated property [core/project].")
                else:
                    expected = f"ERROR: (gcloud.config.set) {NEVER_A_PROJECT}{complaint}"
                    self.assertEqual(first, expected)

    def test_unknown_names_are_refused(self):
        done = self.run_gcloud("config", "set", "nosection/x", "y")
        self.assertIn('Section "nosection" does not exist.', done.stderr)
        done = self.run_gcloud("config", "unset", "nothing")
        self.assertIn("Section [core] has no property [nothing].", done.stderr)

    def test_broken_files_stop_every_command(self):
        for text in ("[core]\na = 1\n[core]\n", "[core]\na = %(x)s\n", "a = 1\n"):
            with self.subTest(text=text):
                self.write(text, "configurations", "config_default")
                done = self.run_gcloud("version", "--format=json")
                self.assertEqual(done.exit, 1)
                self.assertTrue(done.stderr.startswith("ERROR: gcloud failed to load."))
                self.assertFalse(os.path.exists(self.path("logs")))

    def test_credentials_that_gcloud_cannot_read_stop_a_change_of_project(self):
        for text, complaint in {
            "": "JSONDecodeError('Expecting value: line 1 column 1 (char 0)')",
            "{}": "does not have a valid type. Type is None, expected one of",
            "[]": "gcloud crashed (AttributeError): 'list' object has no attribute 'get'",
            '{"type": "nonsense"}': "Type is nonsense, expected one of",
            '{"type": "authorized_user"}': "missing fields client_id, client_secret, refresh_token",
            '{"type": "service_account"}': "missing fields client_email, token_uri",
            '{"type": "impersonated_service_account"}': "Cannot extract target principal from",
        }.items():
            with self.subTest(text=text):
                self.directory.write_adc(text)
                done = self.run_gcloud("config", "set", "project", "other")
                self.assertEqual(done.exit, 1)
                self.assertIn(complaint, done.stderr)
                self.assertEqual(self.properties()["core"]["project"], "one")

    def test_the_survey_file_is_made_once_unless_surveys_are_disabled(self):
        path = self.path(".last_survey_prompt.yaml")
        self.run_gcloud("version", "--format=json", CLOUDSDK_SURVEY_DISABLE_PROMPTS="true")
        self.assertFalse(os.path.exists(path))
        self.run_gcloud("version", "--format=json")
        first = self.read(path)
        self.assertRegex(first, r"^last_prompt_time: \d+\.\d+\n$")
        self.run_gcloud("version", "--format=json")
        self.assertEqual(self.read(path), first)

    def test_logs_of_over_thirty_days_ago_are_removed(self):
        for name in ("old", "recent"):
            os.makedirs(self.path("logs", name))
        os.utime(self.path("logs", "old"), (0, 0))
        self.run_gcloud("version", "--format=json")
        self.assertEqual(len(os.listdir(self.path("logs"))), 2)
        self.assertNotIn("old", os.listdir(self.path("logs")))


if __name__ == "__main__":
    unittest.main()
