# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The Google APIs for the real gcloud: the loopback server of tests/gcloud, and its world."""

import json
import os
import subprocess
import sys

_FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "gcloud")
_SERVER = os.path.join(_FOLDER, "api_standin.py")
_WORLD = os.path.join(_FOLDER, "world.json")


def obstacle():
    """Returns why the server cannot run here, or None."""
    return None if os.path.exists(_SERVER) else "tests/gcloud/api_standin.py is missing"


def make_certificate(folder):
    """Makes a certificate for the APIs' hosts. Returns (its file, its key in PEM form)."""
    key, certificate = os.path.join(folder, "key.pem"), os.path.join(folder, "authority.pem")
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "3650"]
        + ["-subj", "/CN=stand-in", "-addext", "subjectAltName=DNS:*.googleapis.com"]
        + ["-keyout", key, "-out", certificate],
        check=True,
        capture_output=True,
    )
    with open(key, encoding="utf-8") as file:
        return certificate, file.read()


class ApiServer:
    """The server, running; a context manager that ends it."""

    def __init__(self, folder, certificate, key):
        self._certificate = certificate
        both = os.path.join(folder, "server.pem")
        with open(both, "w", encoding="utf-8") as file, open(certificate, encoding="utf-8") as own:
            file.write(key + own.read())
        self._process = subprocess.Popen(
            [sys.executable, _SERVER, _WORLD, both], stdin=subprocess.PIPE, stdout=subprocess.PIPE
        )
        self._port = json.loads(self._process.stdout.readline())["port"]

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()

    def environment(self):
        """Returns what makes gcloud take the server for the internet."""
        return {
            "HTTPS_PROXY": f"http://127.0.0.1:{self._port}",
            "REQUESTS_CA_BUNDLE": self._certificate,
            "NO_PROXY": "127.0.0.1,localhost",
        }


def world():
    """Returns the server's world in the form that the stand-in for gcloud reads."""
    with open(_WORLD, encoding="utf-8") as file:
        data = json.load(file)
    users = data["users"]
    service_accounts = data["serviceAccounts"]
    return {
        "users": {name: {} for name in users},
        "projectsPerPage": data["projectsPerPage"],
        "impersonators": {
            account: [name for name, user in users.items() if account in user["impersonates"]]
            for user in users.values()
            for account in user["impersonates"]
        },
        "projects": [
            {
                "createTime": "2024-02-03T04:05:06.007Z",
                "lifecycleState": "ACTIVE",
                "name": facts["name"],
                "parent": {"type": "organization", "id": "771000000000"},
                "projectId": name,
                "projectNumber": facts["number"],
                "members": [user for user in users if name in users[user]["projects"]],
                "quotaUsers": [user for user in users if name in users[user]["quotaProjects"]],
                "serviceAccounts": _service_accounts(name, service_accounts.get(name, [])),
                "iamDisabled": name not in service_accounts,
            }
            for name, facts in data["projects"].items()
        ],
    }


def _service_accounts(project, accounts):
    return [
        {
            **account,
            "name": f"projects/{project}/serviceAccounts/{account['email']}",
            "projectId": project,
            "uniqueId": str(10**20 + index),
            "etag": "MDEwMjE5MjA=",
            "disabled": False,
        }
        for index, account in enumerate(accounts)
    ]
