# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""The end of a browser sign-in: the local port to which the browser is sent back."""

import socket
import urllib.parse

from .errors import GcloudError

_FIRST_PORT = 8085
_LAST_PORT = 8184
_PATIENCE = 30  # Seconds for the whole of one request.
_PAGE = """<!DOCTYPE HTML>
<html lang="en-US">
  <head><meta charset="UTF-8"><title>{title} - Google Cloud SDK</title></head>
  <body><p>{text}</p></body>
</html>
"""
_SUCCESS = _PAGE.format(
    title="Authentication Successful",
    text="You are now authenticated with the Google Cloud SDK. You may close this window.",
)
_FAILURE = _PAGE.format(
    title="Authentication Failed",
    text="The authentication flow did not complete successfully. You may close this window.",
)


def listen():
    """Returns a socket on the first free port of the loopback interface."""
    for port in range(_FIRST_PORT, _LAST_PORT + 1):
        server = socket.socket()
        server.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        try:
            server.bind(("127.0.0.1", port))
            server.listen(5)
            return server
        except OSError:
            server.close()
    raise GcloudError("Failed to start a local webserver listening on any port.")


def take_request(server):
    """Answers one request, whatever it is, and returns its query."""
    connection, _ = server.accept()
    with connection:
        connection.settimeout(_PATIENCE)
        try:
            query = _query(_head(connection))
            connection.sendall(_answer(_SUCCESS if "code" in query else _FAILURE))
        except OSError:  # Somebody who connects and says nothing, or does not listen.
            query = {}
    return query


def _head(connection):
    received = b""
    while b"\r\n\r\n" not in received:
        piece = connection.recv(65536)
        if not piece:
            break
        received += piece
    return received


def _query(head):
    words = head.partition(b"\r\n")[0].decode("utf-8", "replace").split(" ")
    target = words[1] if len(words) > 1 else ""
    return dict(urllib.parse.parse_qsl(urllib.parse.urlsplit(target).query))


def _answer(page):
    head = f"HTTP/1.0 200 OK\r\nContent-type: text/html\r\nContent-Length: {len(page)}\r\n\r\n"
    return (head + page).encode()
