#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""texts.py LUPDATE: every text that a user reads goes through Qt's translation functions.

Looks for literals in QML and for sentences in C++ that do not, and lets lupdate collect those that
do. What the models import is left to the eye: a C++ literal of one word may as well be a name.
"""

import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
FOLDERS = ("GCloudModels", "GCloudCLI", "GCloudStateManager", "VeldraUI", "Torvi", "torvictl")

SKIPPED = 77
NAMES = {"Torvi", "Google Cloud SDK"}
QML_PROPERTY = re.compile(
    r'\b(?:text|title|subtitle|label|message|placeholder(?:Text)?|caption|hint|toolTip|'
    r'Accessible\.(?:name|description)):([^\n]*)')
CPP_LITERAL = re.compile(r'\bu"((?:[^"\\\n]|\\.)*)"(?:_s)?')
SENTENCE = re.compile(r"^[A-Z][a-z]+ \S|^(?!torvictl )[a-z]+ [a-z]+ [a-z]+|[a-z]: $")

# What each kind of source has to contribute; without them the check would pass on anything.
COLLECTED = {"Filter projects...", "Recently Used", "Could not read config file: %1",
             "Open the popover, or close it", "Torvi is running", "Make another project active",
             "%1 makes gcloud use the project \"%2\".", "not found", "None"}


def sources(suffixes):
    for folder in FOLDERS:
        for path, _, names in os.walk(os.path.join(ROOT, folder)):
            yield from (os.path.join(path, name) for name in sorted(names)
                        if name.endswith(suffixes))


def untranslated():
    for path in sources((".qml", ".cpp", ".h")):
        with open(path, encoding="utf-8") as file:
            for number, line in enumerate(file, 1):
                code = line.split("//")[0]
                if path.endswith(".qml"):
                    value = "".join(QML_PROPERTY.findall(code))
                    found = re.findall(r'(?<!qsTr\()(?<!== )"([A-Z][^"]*)"', value)
                else:
                    found = [text for text in CPP_LITERAL.findall(code) if SENTENCE.search(text)]
                for text in set(found) - NAMES:
                    yield f'{os.path.relpath(path, ROOT)}:{number}: "{text}"'


def collected(lupdate):
    with tempfile.TemporaryDirectory() as folder:
        target = os.path.join(folder, "torvi.ts")
        done = subprocess.run([lupdate, "-I", ROOT, *(os.path.join(ROOT, name) for name in FOLDERS), "-ts",
                               target], capture_output=True, text=True, check=False)
        complaints = [line for line in done.stderr.splitlines() if line.strip()]
        if done.returncode != 0 or complaints:
            return set(), complaints or [f"lupdate: {done.returncode}"]
        return {source.text for source in ElementTree.parse(target).iter("source")}, []


def main():
    if not os.access(sys.argv[1], os.X_OK):
        print("not installed: qt6-l10n-tools")
        return SKIPPED
    texts, complaints = collected(sys.argv[1])
    complaints += [f"not collected: {text}" for text in sorted(COLLECTED - texts)]
    complaints += [f"not translated: {place}" for place in untranslated()]
    print(f"{len(texts)} texts", *complaints, sep="\n")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
