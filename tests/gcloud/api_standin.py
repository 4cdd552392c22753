# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Stands in for the Google APIs on the loopback interface, so that the real gcloud works without a network.

It is an HTTP proxy that answers every tunnel itself, with a certificate of a private authority, and never opens a
connection of its own. Usage: api_standin.py WORLD.json CERTIFICATE.pem. The first line on standard output is
{"port": N}; after that each line of JSON on standard input is answered by one line. It ends with its standard input,
so it cannot outlive whoever started it.

  {"do": "down"}, {"do": "up"}                    every connection is dropped / served again
  {"do": "answer", "path": R, "status": N}        requests whose host and path match R are refused with N
  {"do": "hold", "path": R}, {"do": "release"}    such requests wait for their answer until released
  {"do": "awaitHeld"}                             answered when a request is being held
  {"do": "requests"}                              what was asked so far, and by whom
"""

import http.server
import json
import os
import re
import socketserver
import ssl
import sys
import threading
import urllib.parse

from google_apis import GoogleAPIs, Refusal, api_error


class Faults:
    """What is to go wrong; set by the control thread, read by the connections' threads."""

    def __init__(self):
        self._changed = threading.Condition()
        self._refused = []
        self._holding = None
        self._held = 0
        self.down = False

    def refuse(self, path, status):
        self._refused.append((re.compile(path), status))

    def hold(self, path):
        self._holding = re.compile(path)

    def release(self):
        with self._changed:
            self._holding = None
            self._changed.notify_all()

    def await_held(self):
        with self._changed:
            self._changed.wait_for(lambda: self._held > 0)

    def apply(self, place):
        with self._changed:
            if self._holding and self._holding.search(place):
                self._held += 1
                self._changed.notify_all()
                self._changed.wait_for(lambda: self._holding is None)
                self._held -= 1
        for pattern, status in self._refused:
            if pattern.search(place):
                raise api_error(status, "FAULT", "The stand-in was told to refuse this.")


class Request:
    """One request as the answers see it."""

    def __init__(self, method, host, target, headers, body):
        split = urllib.parse.urlsplit(target)
        self.method = method
        self.host = host
        self.path = split.path
        self.query = split.query
        self.headers = headers
        self.body = body


class Connection(http.server.BaseHTTPRequestHandler):
    """A client's connection: first the CONNECT to a host, then that host's requests inside TLS."""

    protocol_version = "HTTP/1.1"
    host = ""

    def do_CONNECT(self):
        host = self.path.rpartition(":")[0]
        if not self.server.apis.knows_host(host):
            self.server.record("CONNECT", host, "", "", 502)
            self.send_error(502)
            return
        self.send_response(200)
        self.end_headers()
        self.connection = self.server.tls.wrap_socket(self.connection, server_side=True)
        self.rfile = self.connection.makefile("rb")
        self.wfile = self.connection.makefile("wb", buffering=0)
        self.host = host
        self.close_connection = False

    def do_GET(self):
        self._answer("GET")

    def do_POST(self):
        self._answer("POST")

    def _answer(self, method):
        body = self.rfile.read(int(self.headers.get("Content-Length", 0)))
        request = Request(method, self.host, self.path, self.headers, body)
        try:
            self.server.faults.apply(request.host + request.path)
            answer, status = self.server.apis.answer(request), 200
            if answer is None:
                answer, status = {"error": {"code": 404, "message": "Nothing is known of this address."}}, 404
        except Refusal as refusal:
            answer, status = refusal.body, refusal.status
        self.server.record(method, request.host, request.path, self._caller(request), status)
        self._send(status, json.dumps(answer).encode())

    def _caller(self, request):
        try:
            return self.server.apis.caller(request)
        except Refusal:
            return ""

    def _send(self, status, body):
        self.send_response(status)
        self.send_header("Content-Type", "application/json; charset=UTF-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, format, *args):
        pass


class StandIn(socketserver.ThreadingTCPServer):
    daemon_threads = True
    request_queue_size = 64

    def __init__(self, world, certificate):
        super().__init__(("127.0.0.1", 0), Connection)
        self.apis = GoogleAPIs(world)
        self.faults = Faults()
        self.tls = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        self.tls.load_cert_chain(certificate)
        self.requests = []

    def verify_request(self, request, client_address):
        return not self.faults.down

    def handle_error(self, request, client_address):
        """A client that was ended in the middle of a request is what some tests are about."""

    def record(self, method, host, path, caller, status):
        self.requests.append({"method": method, "host": host, "path": path, "caller": caller, "status": status})

    def control(self, order):
        action = order["do"]
        if action in ("down", "up"):
            self.faults.down = action == "down"
        elif action == "answer":
            self.faults.refuse(order["path"], order["status"])
        elif action == "hold":
            self.faults.hold(order["path"])
        elif action == "release":
            self.faults.release()
        elif action == "awaitHeld":
            self.faults.await_held()
            return {"held": True}
        elif action == "requests":
            return {"requests": list(self.requests)}
        else:
            return {"error": "unknown order"}
        return {}


def say(value):
    print(json.dumps(value), flush=True)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        stand_in = StandIn(json.load(file), sys.argv[2])
    threading.Thread(target=stand_in.serve_forever, daemon=True).start()
    say({"port": stand_in.server_address[1]})
    for line in sys.stdin:
        say(stand_in.control(json.loads(line)))
    os._exit(0)


if __name__ == "__main__":
    main()
