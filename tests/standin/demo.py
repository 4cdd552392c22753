#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""A scratch world to try Torvi in, without a Google account and without touching anything.

    demo.py [-- PROGRAM ARGUMENTS...]

Runs the program, by default a shell, in a new home directory with a signed-in gcloud (the
stand-in), forty projects, four configurations and some preferences, and removes all that at the
end. A sign-in works: its browser signs in by itself. Exits as the program does.
"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile

from standin.directory import Directory, user_adc

HERE = os.path.dirname(os.path.abspath(__file__))

MIRA = "mira.holm@larkspur.example"
MOONLIGHT = "mira@moonlight.example"
DEPLOYER = "deployer@larkspur-checkout-prod.iam.gserviceaccount.com"
READER = "report-reader@larkspur-data-warehouse.iam.gserviceaccount.com"

PINNED = [
    "larkspur-checkout-prod",
    "larkspur-cafe-fr",
    "larkspur-payments-prod",
    "larkspur-warehouse-jp",
]
RECENT = [
    "larkspur-checkout-prod",
    "larkspur-data-warehouse",
    "larkspur-customers-ae",
    "larkspur-checkout-stage",
    "moonlight-weather",
]
SAVED = {
    "larkspur-checkout-prod": [
        {"email": DEPLOYER, "projectId": "larkspur-checkout-prod", "displayName": "Deployments"},
        {
            "email": "report-reader@larkspur-checkout-prod.iam.gserviceaccount.com",
            "projectId": "larkspur-checkout-prod",
        },
    ],
    "larkspur-data-warehouse": [
        {"email": READER, "projectId": "larkspur-data-warehouse", "displayName": "Звіти"},
    ],
}

GREETING = """
A scratch world for Torvi: two users, two service accounts, four configurations,
forty projects. Nothing in it is real, and nothing of yours is touched.

  torvictl status                                what is active
  torvictl projects                              the projects
  torvictl switch-project larkspur-cafe-fr       another project
  torvictl activate-configuration moonlight      another configuration
  torvictl impersonate {reader}
  torvictl adc-login                             a sign-in; its browser signs in by itself
  torvictl watch &                               see what gcloud changes
  gcloud config set project x7                   the stand-in itself

`TORVI_STANDIN_FAULT=offline:3 torvictl projects` and the like show failures;
{readme} lists them.
`unset BROWSER` makes you the browser. `exit` removes this world.
"""


class DemoWorld:
    """The world on disk; a context manager that removes it. `pace` is that of the stand-in."""

    def __init__(self, pace="1"):
        self.path = tempfile.mkdtemp(prefix="torvi-demo-")
        self.home = os.path.join(self.path, "home")
        self.config = os.path.join(self.home, ".config", "gcloud")
        self._pace = pace
        os.makedirs(os.path.join(self.path, "bin"))
        os.symlink(os.path.join(HERE, "gcloud"), os.path.join(self.path, "bin", "gcloud"))
        self._write_gcloud_directory()
        self._write_preferences()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path, ignore_errors=True)

    @property
    def gcloud(self):
        return os.path.join(HERE, "gcloud")

    def environment(self):
        """Returns the caller's environment with everything personal replaced."""
        kept = {
            name: value
            for name, value in os.environ.items()
            if not name.startswith(("CLOUDSDK_", "GOOGLE_", "BOTO_"))
        }
        folders = {
            "XDG_CONFIG_HOME": ".config",
            "XDG_DATA_HOME": ".local/share",
            "XDG_STATE_HOME": ".local/state",
            "XDG_CACHE_HOME": ".cache",
        }
        return {
            **kept,
            **{name: os.path.join(self.home, folder) for name, folder in folders.items()},
            "HOME": self.home,
            "PATH": os.pathsep.join([os.path.join(self.path, "bin"), kept.get("PATH", "")]),
            "CLOUDSDK_CONFIG": self.config,
            "BROWSER": os.path.join(HERE, "browser"),
            "TORVI_STANDIN_WORLD": os.path.join(HERE, "data", "demo-world.json"),
            "TORVI_STANDIN_HEADLESS": "1",
            "TORVI_STANDIN_PACE": self._pace,
        }

    def _write_gcloud_directory(self):
        directory = Directory(self.config)
        for user in (MIRA, MOONLIGHT):
            directory.add_user(user)
        for account in (DEPLOYER, READER):
            directory.add_service_account(account)
        directory.add_configuration(
            "default",
            core={"account": MIRA, "project": "larkspur-checkout-prod"},
            compute={"region": "europe-west1", "zone": "europe-west1-b"},
        )
        directory.add_configuration(
            "moonlight",
            core={"account": MOONLIGHT, "project": "moonlight-weather"},
        )
        directory.add_configuration(
            "reports",
            core={"account": MIRA, "project": "larkspur-data-warehouse"},
            compute={"region": "us-central1"},
            auth={"impersonate_service_account": READER},
        )
        directory.add_configuration("robot", core={"account": DEPLOYER})
        directory.cache_tokens(MIRA, MOONLIGHT, DEPLOYER, READER)
        directory.write_adc(user_adc(MIRA, "larkspur-checkout-prod"))

    def _write_preferences(self):
        """Writes what Torvi's stores would have written."""
        saved = json.dumps(SAVED, separators=(",", ":"), sort_keys=True)
        lines = [
            "[General]",
            "com.veldra.favorites=" + ", ".join(sorted(PINNED)),
            "com.veldra.gcloudPath=" + _quoted(self.gcloud),
            "com.veldra.recents=" + ", ".join(RECENT),
            "com.veldra.serviceaccounts=" + _quoted(f"@ByteArray({saved})"),
        ]
        folder = os.path.join(self.home, ".config", "torvi")
        os.makedirs(folder)
        path = os.path.join(folder, "preferences.ini")
        with open(os.open(path, os.O_WRONLY | os.O_CREAT, 0o600), "w", encoding="utf-8") as file:
            file.write("\n".join(lines) + "\n")


def _quoted(text):
    """Returns the text as a value of an INI file of QSettings: in quotes where they are needed."""
    if not set(text) & set(';,="\\'):
        return text
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _shell(environment):
    """Returns the command of an interactive shell that reads nothing of the user's."""
    programs = os.path.join(os.path.dirname(os.path.dirname(HERE)), "build", "release", "bin")
    environment["PATH"] = os.pathsep.join([programs, environment["PATH"]])
    environment["PS1"] = "demo:\\w\\$ "
    print(GREETING.format(reader=READER, readme=os.path.join(HERE, "README.md")))
    if os.path.exists("/bin/bash"):
        return ["/bin/bash", "--noprofile", "--norc", "-i"]
    return ["/bin/sh", "-i"]


def _run(command, environment):
    """Runs the program and returns its exit code; 128 and the signal when one ended it."""
    # The terminal's signals are meant for the program; the world is removed after it.
    signal.signal(signal.SIGINT, signal.SIG_IGN)
    try:
        process = subprocess.Popen(command, env=environment, preexec_fn=_listen_to_interrupts)
    except OSError as error:
        print(f"demo.py: {command[0]}: {error.strerror}", file=sys.stderr)
        return 127
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda received, _frame: process.send_signal(received))
    code = process.wait()
    return code if code >= 0 else 128 - code


def _listen_to_interrupts():
    signal.signal(signal.SIGINT, signal.SIG_DFL)


def main(arguments):
    if arguments and arguments[0] != "--":
        print(__doc__.strip(), file=sys.stderr)
        return 0 if arguments[0] in ("-h", "--help") else 2
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, lambda received, _frame: sys.exit(128 + received))
    with DemoWorld(os.environ.get("TORVI_STANDIN_PACE", "1")) as world:
        environment = world.environment()
        return _run(arguments[1:] or _shell(environment), environment)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
