# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""A world with the real gcloud, which needs neither a network nor an account.

The signed-in gcloud directory, the stand-in for the Google APIs and the browser are those of the
tests of torvictl on the real gcloud.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile

GCLOUD_TESTS = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "gcloud")
SIGNED_IN = os.environ.get("TORVI_SIGNED_IN_DIRECTORY", "")

DANA = "dana@example.com"
SAM = "sam@labs.example.com"
PROD = "orchard-prod-5150"
STAGE = "orchard-stage-5150"
DEPLOYER = f"deployer@{PROD}.iam.gserviceaccount.com"
READER = f"reader@{PROD}.iam.gserviceaccount.com"
PLAIN = f"plain@{PROD}.iam.gserviceaccount.com"

# Keeps the address that gcloud opens.
BROWSER = """\
#!/bin/sh
echo "$1" >>"@HOME@/addresses"
exec python3 "@BROWSER@" "$1"
"""


class GoogleStandIn:
    """The Google APIs, by a proxy on the loopback interface; ends with this process."""

    def __init__(self, certificate):
        self._process = subprocess.Popen(
            [sys.executable, os.path.join(GCLOUD_TESTS, "api_standin.py"),
             os.path.join(GCLOUD_TESTS, "world.json"), certificate],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.port = self._read()["port"]

    def close(self):
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()

    def _read(self):
        return json.loads(self._process.stdout.readline())

    def unknown_requests(self):
        """What was asked for that it has no answer to."""
        print(json.dumps({"do": "requests"}), file=self._process.stdin, flush=True)
        return [request["host"] + request["path"] for request in self._read()["requests"]
                if request["status"] in (404, 502)]


class SignedInWorld:
    """A copy of the signed-in directory, and its Google; a context manager that removes both."""

    def __init__(self):
        self.home = self.path = tempfile.mkdtemp(prefix="torvi-real-gcloud-")
        self.config = os.path.join(self.path, "config")
        shutil.copytree(os.path.join(SIGNED_IN, "config"), self.config)
        self.google = GoogleStandIn(os.path.join(SIGNED_IN, "certificate.pem"))
        self.gcloud = self._write_program("gcloud", self._guarded_gcloud())
        self.browser = self._write_program("browser", BROWSER.replace(
            "@BROWSER@", os.path.join(GCLOUD_TESTS, "browser.py")))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.google.close()
        shutil.rmtree(self.path, ignore_errors=True)

    @staticmethod
    def _guarded_gcloud():
        with open(os.path.join(GCLOUD_TESTS, "guarded_gcloud.sh"), encoding="utf-8") as file:
            return file.read().replace("@GCLOUD@", shutil.which("gcloud"))

    def _write_program(self, name, text):
        path = os.path.join(self.path, "bin", name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace("@HOME@", self.home))
        os.chmod(path, 0o700)
        return path

    def environment(self):
        """Only what is said here, so that nothing of the developer's own world gets in."""
        proxy = f"http://127.0.0.1:{self.google.port}"
        return {
            **{name: value for name, value in os.environ.items()
               if name.startswith("CLOUDSDK_PYTHON")},
            "PATH": os.pathsep.join([os.path.dirname(self.gcloud), os.environ["PATH"]]),
            "HOME": self.home,
            "SHELL": "/bin/sh",
            "LANG": "C.UTF-8",
            "XDG_SESSION_TYPE": "x11",
            "XDG_CONFIG_HOME": os.path.join(self.path, "preferences"),
            "CLOUDSDK_CONFIG": self.config,
            "CLOUDSDK_CORE_DISABLE_USAGE_REPORTING": "true",
            "CLOUDSDK_COMPONENT_MANAGER_DISABLE_UPDATE_CHECK": "true",
            "CLOUDSDK_SURVEY_DISABLE_PROMPTS": "true",
            "CLOUDSDK_CORE_CHECK_GCE_METADATA": "false",
            "HTTPS_PROXY": proxy,
            "HTTP_PROXY": proxy,
            "NO_PROXY": "127.0.0.1,localhost",
            "REQUESTS_CA_BUNDLE": os.path.join(SIGNED_IN, "authority.pem"),
            "BROWSER": self.browser,
            "TORVI_TEST_USER": DANA,
        }

    def lines(self, name):
        """What was recorded there so far."""
        try:
            with open(os.path.join(self.path, name), encoding="utf-8") as file:
                return file.read().splitlines()
        except FileNotFoundError:
            return []

    def is_at_rest(self):
        """Whether no gcloud runs in this world."""
        variable = f"\0CLOUDSDK_CONFIG={self.config}\0".encode()
        return not any(variable in b"\0" + _read(pid, "environ") and _is_gcloud(pid)
                       for pid in filter(str.isdigit, os.listdir("/proc")))


def _is_gcloud(pid):
    """By the script that its shell or its Python runs."""
    return any(os.path.basename(argument).startswith(b"gcloud")
               for argument in _read(pid, "cmdline").split(b"\0"))


def _read(pid, name):
    try:
        with open(f"/proc/{pid}/{name}", "rb") as file:
            return file.read()
    except OSError:  # gone meanwhile
        return b""
