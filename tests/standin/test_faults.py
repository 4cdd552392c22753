# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The failures on demand: each must do to its caller what it says."""

import os
import signal
import subprocess
import time
import unittest

from harness import DEADLINE, GCLOUD, Run, Scratch, run
from standin.directory import Directory, user_adc

ALEX = "alex.moreno@example.com"
SET_PROJECT = ["config", "set", "project", "orchid-staging-4821"]


class FaultTest(unittest.TestCase):
    def setUp(self):
        self.scratch = self.enterContext(Scratch())
        self.directory = Directory(self.scratch.config)
        self.directory.add_user(ALEX)
        self.directory.add_configuration("default", core={"account": ALEX, "project": "old-one"})
        self.directory.cache_tokens(ALEX)

    def start(self, arguments, fault):
        process = Run(arguments, self.scratch.environment(TORVI_STANDIN_FAULT=fault))
        self.addCleanup(process.kill)
        return process

    def run_with(self, arguments, fault):
        return run(arguments, self.scratch.environment(TORVI_STANDIN_FAULT=fault))

    def config_text(self):
        path = os.path.join(self.scratch.config, "configurations", "config_default")
        with open(path, encoding="utf-8") as file:
            return file.read()

    def test_hang_waits_until_it_is_ended(self):
        process = self.start(SET_PROJECT, "hang@output")
        process.read("stderr", 1)
        self.assertTrue(process.is_running())
        process.send(signal.SIGTERM)
        self.assertEqual(process.wait(), -signal.SIGTERM)

    def test_deaf_is_ended_by_kill_only(self):
        process = self.start(SET_PROJECT, "deaf")
        self.assertEqual(process.read("stderr", 100), b"deaf\n")
        process.send(signal.SIGTERM)
        process.send(signal.SIGINT)
        process.send(signal.SIGKILL)
        self.assertEqual(process.wait(), -signal.SIGKILL)

    def test_die_ends_by_the_signal_in_the_middle_of_a_line(self):
        done = self.run_with(["version", "--format=json"], "die:ABRT")
        self.assertEqual(done.exit, -signal.SIGABRT)
        self.assertTrue(done.stdout.startswith('{\n  "Google'))
        self.assertFalse(done.stdout.endswith("}\n"))

    def test_die_without_a_signal_is_a_segmentation_fault(self):
        self.assertEqual(self.run_with(SET_PROJECT, "die").exit, -signal.SIGSEGV)

    def test_die_at_truncation_leaves_an_empty_file(self):
        done = self.run_with(SET_PROJECT, "die:KILL@truncate")
        self.assertEqual(done.exit, -signal.SIGKILL)
        self.assertEqual(self.config_text(), "")

    def test_die_at_the_request_leaves_the_quota_project_lost(self):
        self.directory.write_adc(user_adc(ALEX, "orchid-prod-4821"))
        command = ["auth", "application-default", "set-quota-project", "orchid-staging-4821"]
        self.assertEqual(self.run_with(command, "die:KILL@request").exit, -signal.SIGKILL)
        path = os.path.join(self.scratch.config, "application_default_credentials.json")
        with open(path, encoding="utf-8") as file:
            self.assertNotIn("quota_project_id", file.read())

    def test_die_at_the_end_has_done_everything_before(self):
        done = self.run_with(SET_PROJECT, "die:KILL@end")
        self.assertEqual(done.exit, -signal.SIGKILL)
        self.assertIn("orchid-staging-4821", self.config_text())

    def test_exit_is_silent(self):
        done = self.run_with(SET_PROJECT, "exit:7")
        self.assertEqual((done.exit, done.stdout, done.stderr), (7, "", ""))

    def test_flood_fills_both_streams_before_the_work(self):
        done = self.run_with(["version", "--format=json"], "flood:2")
        self.assertEqual(done.exit, 0)
        self.assertGreater(len(done.stdout), 1_000_000)
        self.assertGreater(len(done.stderr), 1_000_000)
        self.assertTrue(done.stdout.endswith("}\n"))

    def test_half_stops_in_the_middle_of_a_line(self):
        done = self.run_with(SET_PROJECT, "half")
        self.assertEqual((done.exit, done.stderr), (0, "Updated property"))

    def test_utf8_is_not_decodable(self):
        environment = self.scratch.environment(TORVI_STANDIN_FAULT="utf8")
        done = subprocess.run(
            [GCLOUD, "version", "--format=json"], env=environment, capture_output=True, check=True
        )
        with self.assertRaises(UnicodeDecodeError):
            done.stdout.decode()

    def test_split_writes_pieces_of_that_size(self):
        process = self.start(SET_PROJECT, "split:5")
        pieces = iter(lambda: process.read("stderr", 65536), b"")
        self.assertEqual(next(pieces), b"Updat")
        self.assertEqual(b"".join(pieces), b"ed property [core/project].\n")

    def test_grandchild_holds_the_pipes_after_the_end(self):
        process = self.start(SET_PROJECT, "grandchild")
        self.assertEqual(process.wait(), 0)
        self.assertEqual(process.read("stderr", 65536), b"Updated property [core/project].\n")
        self.assertTrue(process.holds("stdout"))
        self.assertTrue(process.holds("stderr"))

    def test_grandchild_ends_when_nobody_reads_any_more(self):
        # The grandchild inherits this pipe's writing end too: its closing is the grandchild's end.
        reader, writer = os.pipe()
        process = subprocess.Popen(
            [GCLOUD, *SET_PROJECT],
            env=self.scratch.environment(TORVI_STANDIN_FAULT=f"grandchild:{DEADLINE}"),
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            pass_fds=[writer],
        )
        os.close(writer)
        process.wait(DEADLINE)
        process.stdout.close()
        process.stderr.close()
        self.assertEqual(os.read(reader, 1), b"")
        os.close(reader)

    def test_slow_takes_its_time_for_each_request(self):
        fast = _seconds(lambda: self.run_with(SET_PROJECT, "slow:0"))
        slow = _seconds(lambda: self.run_with(SET_PROJECT, "slow:1"))
        self.assertGreaterEqual(slow, 1.0)
        self.assertLess(fast, slow)

    def test_offline_takes_as_long_as_it_is_told(self):
        self.assertGreaterEqual(_seconds(lambda: self.run_with(SET_PROJECT, "offline:0.5")), 0.5)
        self.assertIn("project = old-one", self.config_text())

    def test_a_fault_can_be_meant_for_one_command(self):
        fault = "projects list=exit:7, config set=exit:8"
        self.assertEqual(self.run_with(["projects", "list", "--format=json"], fault).exit, 7)
        self.assertEqual(self.run_with(SET_PROJECT, fault).exit, 8)
        self.assertEqual(self.run_with(["version", "--format=json"], fault).exit, 0)

    def test_an_unknown_fault_is_refused(self):
        for fault in ("hnag", "hang@never"):
            done = self.run_with(["version", "--format=json"], fault)
            self.assertEqual(done.exit, 1)
            self.assertIn("no such fault", done.stderr)

    def test_a_reader_that_goes_away_ends_the_run(self):
        process = self.start(["config", "configurations", "list", "--format=json"], "split:60000")
        process.close("stdout")
        self.assertEqual(process.wait(), 1)


def _seconds(action):
    start = time.monotonic()
    action()
    return time.monotonic() - start


if __name__ == "__main__":
    unittest.main()
