# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The comparison with the real gcloud: that it is made where it can be, and whole."""

import os
import re
import subprocess
import sys
import unittest

import compare
import demo
import looks
import script
from harness import DEADLINE, Scratch


class CompareTest(unittest.TestCase):
    def test_without_gcloud_it_is_skipped_and_says_why(self):
        with Scratch() as scratch:
            done = subprocess.run(
                [sys.executable, os.path.join(demo.HERE, "compare.py")],
                env={"PATH": scratch.path},
                capture_output=True,
                text=True,
                timeout=DEADLINE,
                check=False,
            )
        self.assertEqual(done.returncode, compare.SKIPPED)
        self.assertEqual(done.stdout, "not compared: gcloud is not installed\n")

    def test_every_chapter_is_a_test_of_its_own(self):
        with open(os.path.join(demo.HERE, "CMakeLists.txt"), encoding="utf-8") as file:
            listed = re.search(r"foreach\(chapter ([\w ]+)\)", file.read())
        self.assertEqual(listed[1].split(), list(script.CHAPTERS))

    def test_differences_are_found_in_either_direction(self):
        found = compare._differences({"a": 1, "b": 2}, {"a": 1, "c": 3})
        self.assertEqual(found, [("b", 2, None), ("c", None, 3)])

    def test_only_what_is_set_of_json_is_compared(self):
        self.assertEqual(looks.output('{"a": {"b": null}, "c": [1]}\n'), '{\n "c": [\n  1\n ]\n}')


if __name__ == "__main__":
    unittest.main()
