#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The browser that gcloud starts for a sign-in: visits the address as the user that TORVI_TEST_USER names.

TORVI_TEST_BROWSER says what the user does: "sign-in" (the default), "cancel", "ignore" (never comes back), or
"linger" (signs in and leaves a window open, which holds gcloud's pipes until the file TORVI_TEST_WINDOW is gone).
"""

import http.client
import os
import socket
import sys
import urllib.parse

from google_apis import SCOPES, new_token


def come_back(address):
    """Asks the redirect address what Google's page would make the browser ask."""
    fields = dict(urllib.parse.parse_qsl(urllib.parse.urlsplit(address).query))
    answer = {"state": fields["state"], "code": new_token("code", os.environ["TORVI_TEST_USER"]), "scope": SCOPES}
    if os.environ.get("TORVI_TEST_BROWSER") == "cancel":
        answer = {"state": fields["state"], "error": "access_denied"}
    redirect = urllib.parse.urlsplit(fields["redirect_uri"])
    connection = http.client.HTTPConnection("127.0.0.1", redirect.port, timeout=60)
    connection.request("GET", "/?" + urllib.parse.urlencode(answer))
    connection.getresponse().read()


def leave_pipes():
    nothing = os.open(os.devnull, os.O_RDWR)
    for stream in range(3):
        os.dup2(nothing, stream)


def keep_window_open():
    """Until the stand-in ends, so that no test can leave a browser behind."""
    proxy = urllib.parse.urlsplit(os.environ["HTTPS_PROXY"])
    with socket.create_connection((proxy.hostname, proxy.port)) as connection:
        connection.recv(1)


def main():
    behaviour = os.environ.get("TORVI_TEST_BROWSER", "sign-in")
    if behaviour == "ignore" or os.fork():
        return
    os.setsid()
    if behaviour != "linger":
        leave_pipes()
    come_back(sys.argv[1])
    if behaviour == "linger":
        keep_window_open()


if __name__ == "__main__":
    main()
