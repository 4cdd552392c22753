# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""What the tests of the stand-in share: a scratch directory, a run, the browser's part."""

import json
import os
import re
import select
import shutil
import signal
import subprocess
import tempfile
import urllib.parse
import urllib.request

GCLOUD = os.path.join(os.path.dirname(os.path.abspath(__file__)), "gcloud")
DEADLINE = 60  # Seconds after which a run that should have ended fails its test.


class Scratch:
    """A directory that is removed at the end, with a configuration directory in it."""

    def __init__(self):
        self.path = tempfile.mkdtemp()
        self.config = os.path.join(self.path, "gcloud")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.path)

    def file(self, name):
        return os.path.join(self.path, name)

    def script(self, name, body):
        """Writes a shell script and returns its path."""
        path = self.file(name)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + body)
        os.chmod(path, 0o700)
        return path

    def write_json(self, name, content):
        with open(self.file(name), "w", encoding="utf-8") as file:
            json.dump(content, file)
        return self.file(name)

    def environment(self, **more):
        """Returns an environment without anything of the user's."""
        return {
            "PATH": os.environ["PATH"],
            "HOME": self.path,
            "CLOUDSDK_CONFIG": self.config,
            "TORVI_STANDIN_JOURNAL": self.file("journal"),
            **more,
        }

    def journal(self):
        """Returns the entries that runs have left."""
        try:
            with open(self.file("journal"), encoding="utf-8") as file:
                return [json.loads(line) for line in file]
        except FileNotFoundError:
            return []

    def forget_writes(self):
        """Keeps the requests of the runs so far, and nothing else."""
        requests = [entry for entry in self.journal() if "request" in entry]
        with open(self.file("journal"), "w", encoding="utf-8") as file:
            file.writelines(json.dumps(entry) + "\n" for entry in requests)

    def requests(self):
        return [entry["request"] for entry in self.journal() if "request" in entry]

    def writes(self, stream):
        return [entry["bytes"] for entry in self.journal() if entry.get("stream") == stream]


class Run:
    """One run of the stand-in (or of another gcloud) with its outputs on pipes."""

    def __init__(self, arguments, environment, program=GCLOUD):
        self._process = subprocess.Popen(
            [program, *arguments],
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )
        self._stderr_head = b""
        self.stdout = ""
        self.stderr = ""
        self.exit = None

    @property
    def pid(self):
        return self._process.pid

    def address(self):
        """Waits for the sign-in address on standard error and returns it."""
        pattern = re.compile(rb"(https://accounts\.google\.com/\S+S256)\n")
        while not (match := pattern.search(self._stderr_head)):
            piece = self.read("stderr", 65536)
            if not piece:
                raise AssertionError(f"no sign-in address in {self._stderr_head!r}")
            self._stderr_head += piece
        return match[1].decode()

    def is_running(self):
        return self._process.poll() is None

    def read(self, stream, size):
        """Waits for some output and returns it. stream: "stdout" or "stderr"."""
        descriptor = getattr(self._process, stream).fileno()
        if not select.select([descriptor], [], [], DEADLINE)[0]:
            raise AssertionError(f"nothing on {stream}")
        return os.read(descriptor, size)

    def holds(self, stream):
        """True when nothing is to be read and somebody could still write."""
        descriptor = getattr(self._process, stream).fileno()
        os.set_blocking(descriptor, False)
        try:
            os.read(descriptor, 1)
        except BlockingIOError:
            return True
        return False

    def close(self, stream):
        """Stops reading."""
        getattr(self._process, stream).close()

    def send(self, number):
        os.kill(self.pid, number)

    def wait(self):
        """Waits for the end of the process, not of its output, and returns its exit code."""
        self.exit = self._process.wait(DEADLINE)
        return self.exit

    def finish(self):
        """Waits for the end of the run and of its output; returns itself."""
        out, err = self._process.communicate(timeout=DEADLINE)
        self.stdout = out.decode("utf-8", "surrogateescape")
        self.stderr = (self._stderr_head + err).decode("utf-8", "surrogateescape")
        self.exit = self._process.returncode
        return self

    def kill(self):
        """Ends the run if it has not ended, for the clean-up of a test."""
        if self.is_running():
            self.send(signal.SIGKILL)
        self._process.wait()
        self._process.stdout.close()
        self._process.stderr.close()


def run(arguments, environment, program=GCLOUD):
    """Runs the program to its end."""
    return Run(arguments, environment, program).finish()


def visit(address, **query):
    """Makes the request of the browser at the end of a sign-in; returns the page."""
    fields = dict(urllib.parse.parse_qsl(urllib.parse.urlsplit(address).query))
    if "code" in query:
        query = {"state": fields["state"], **query}
    target = fields["redirect_uri"] + "?" + urllib.parse.urlencode(query)
    opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
    with opener.open(target, timeout=DEADLINE) as answer:
        return answer.read().decode()


def snapshot(directory):
    """Returns {path: facts} of all files below the directory; folders end in a slash."""
    found = {}
    for folder, folders, files in os.walk(directory):
        for name in folders:
            found[os.path.relpath(os.path.join(folder, name), directory) + "/"] = {}
        for name in files:
            path = os.path.join(folder, name)
            status = os.stat(path)
            with open(path, "rb") as file:
                content = file.read()
            found[os.path.relpath(path, directory)] = {
                "inode": status.st_ino,
                "modified": status.st_mtime_ns,
                "mode": status.st_mode & 0o777,
                "content": content,
            }
    return found
