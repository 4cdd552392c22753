# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Each recording of the real gcloud, run again on the stand-in.

Compared are the exit code, both texts and the places where a write ends; the requests; the files
that changed, how and in which order. Not compared are times, the contents of log files, the events
of the databases (their last states are), and `gce`, which gcloud rewrites when its age asks for it.
"""

import json
import os
import re
import signal
import unittest

from harness import Run, Scratch, run, snapshot, visit
from inotify import Events
from replays import REPLAYS, Replay

_HERE = os.path.dirname(os.path.abspath(__file__))
_RECORDINGS = os.path.join(_HERE, "data", "recordings")

# The length of the configuration directory's path when the recordings were made.
_RECORDED_PATH = "D" * 15

# Words that stand for something whose length the recordings do not tell.
_OF_OTHER_LENGTH = ("JWTHEADER", "REFRESHTOKEN", "'server': 'api-stand-in'")

# What cannot be run again as it was, and why; test_signin.py and test_properties.py have more.
NOT_REPLAYED = {
    "applicationDefaultLogin-display-no-browser": "the text is that of the desktop's opener",
    "applicationDefaultLogin-xdg-open-finds-nothing": "the text is that of the desktop's opener",
}


class RecordingTest(unittest.TestCase):
    """One test a recording, made below."""

    maxDiff = None

    def replay(self, name):
        with open(os.path.join(_RECORDINGS, name + ".json"), encoding="utf-8") as file:
            recording = json.load(file)
        replay = REPLAYS.get(name, Replay())
        with Scratch() as scratch:
            self._prepare(scratch, name, replay)
            environment = self._environment(scratch, recording, replay)
            for arguments in replay.first:
                run(arguments, {**environment, "TORVI_STANDIN_FAULT": ""})
                os.remove(os.path.join(scratch.config, ".last_survey_prompt.yaml"))
                scratch.forget_writes()
            before = snapshot(scratch.config)
            events = Events(scratch.config)
            done = self._run(recording["argv"][1:], environment, replay)
            after = snapshot(scratch.config)

            self._compare_texts(recording, done, scratch)
            self._compare_requests(recording, scratch)
            self._compare_files(recording, before, after)
            self._compare_events(recording, events.take(), replay)
            self._compare_credentials(recording, after)

    def _prepare(self, scratch, name, replay):
        replay.build(scratch.config)
        if name == "getConfigProperties-bad-file":
            path = os.path.join(scratch.config, "configurations", "config_default")
            with open(path, "w", encoding="utf-8") as file:
                file.write("this is not ini\n")

    def _environment(self, scratch, recording, replay):
        with open(os.path.join(_HERE, "data", "world.json"), encoding="utf-8") as file:
            world = json.load(file)
        world["installation"] = {"core": {"disable_usage_reporting": "True"}}
        replay.world(world)
        more = dict(recording.get("environment", {}).get("extra", {}))
        if "BROWSER" in more:
            more["BROWSER"] = scratch.script("browser", "exit 0\n")
        return scratch.environment(
            TORVI_STANDIN_WORLD=scratch.write_json("world.json", world),
            TORVI_STANDIN_FAULT=replay.fault,
            **more,
        )

    def _run(self, arguments, environment, replay):
        process = Run(arguments, environment)
        self.addCleanup(process.kill)
        if "BROWSER" in environment:
            address = process.address()
            if replay.signal is not None:
                process.send(getattr(signal, replay.signal))
            elif replay.browser is None:
                visit(address)
            else:
                visit(address, **replay.browser)
        return process.finish()

    def _compare_texts(self, recording, done, scratch):
        self.assertEqual(done.exit, recording["exit"])
        for stream in ("stdout", "stderr"):
            shown = _without_chance(getattr(done, stream), scratch.config)
            self.assertEqual(shown, _without_chance(recording[stream], scratch.config))
            if not any(word in shown for word in _OF_OTHER_LENGTH):
                self._compare_pieces(recording, stream, scratch)

    def _compare_pieces(self, recording, stream, scratch):
        """Wherever gcloud ended a piece of output, the stand-in does too."""
        writes = [
            piece.replace(scratch.config, _RECORDED_PATH).encode()
            for piece in scratch.writes(stream)
        ]
        ends = {sum(map(len, writes[: count + 1])) for count in range(len(writes))}
        position = 0
        sizes = [size for _, name, size in recording["chunks"] if name == stream]
        if max(sizes, default=0) >= 8000:
            # Long outputs are cut where gcloud's buffer happens to be full.
            self.assertTrue(all(8192 <= len(piece) < 8450 for piece in writes[:-1]))
            return
        for size in sizes:
            position += size
            self.assertIn(position, ends | {0})

    def _compare_requests(self, recording, scratch):
        expected = [_request(request) for request in recording["api_requests"]]
        made = [_request(request) for request in scratch.requests()]
        for one, other in zip(made, expected):
            if other["account"] is None:  # The recorder did not know who asked, or for what.
                one.update(account=None, grant=other["grant"])
        self.assertEqual(made, expected)

    def _compare_files(self, recording, before, after):
        expected = {
            change["path"]: _change(change)
            for change in recording["files_changed"]
            if _is_compared(change["path"])
        }
        self.assertEqual(_changes(before, after), expected)

    def _compare_events(self, recording, events, replay):
        recorded = [re.sub(r"^\d+ | x\d+$", "", event) for event in recording["events"]]
        self.assertEqual(_essential(events, replay), _essential(recorded, replay))
        if recording["events"] and not replay.is_empty:
            self.assertTrue(events[0].startswith("CREATE logs/"))
            self.assertTrue(recorded[0].startswith("CREATE logs/"))

    def _compare_credentials(self, recording, after):
        if recording.get("adc_after") is None:
            return
        content = json.loads(after["application_default_credentials.json"]["content"])
        names = ("type", "quota_project_id", "client_email", "service_account_impersonation_url")
        meaning = {name: content[name] for name in names if name in content}
        self.assertEqual(meaning, recording["adc_after"])


def _without_chance(text, directory):
    """Replaces what differs from run to run by the words that the recordings have for it."""
    replacements = [
        (re.escape(directory), "$CLOUDSDK_CONFIG"),
        (r"764086051850-\w+\.apps", "764086051850-ADCCLIENTID.apps"),
        (r"state=\w+", "state=STATE30CHARS"),
        (r"code_challenge=[-\w]+", "code_challenge=CHALLENGE43CHARS"),
        (r"0x[0-9a-f]+", "0xADDRESS"),
        (r"^[-\w]+\.[-\w]+\.[-\w]+$", "JWTHEADER.JWTPAYLOAD.JWTSIGNATURE"),
        (r"'date': '[^']*'", "'date': 'DATE'"),
        (r"localhost%3A\d+", "localhost%3A8085"),
        (r"token=refresh\.\S+", "token=REFRESHTOKEN"),
        (r"\$SDK_ROOT", "/usr/lib/google-cloud-sdk"),
    ]
    for pattern, replacement in replacements:
        text = re.sub(pattern, replacement.replace("\\", r"\\"), text)
    return text


def _request(request):
    members = {key: request.get(key) for key in ("method", "host", "path", "status", "account")}
    members["grant"] = request.get("grant")
    members["path"] = _without_chance(members["path"], "\0")
    return members


def _is_compared(path):
    return path != "gce" and not path.startswith("logs")


def _change(change):
    """Returns what is compared of a recorded change."""
    kept = {"change": change["change"]}
    # Whether the content is the same says something about the recording's file, not about gcloud.
    if change["path"].endswith(".json"):
        kept["change"] = kept["change"].replace("rewritten-same-content", "modified")
    if "mode" in change:
        kept["mode"] = change["mode"]
    if "same_inode" in change:
        kept["same_inode"] = change["same_inode"]
    # The sizes of these depend on the lengths of secrets and on the clock.
    if not change["path"].endswith((".json", ".yaml")) and "size" in change:
        kept["size"] = change["size"]
    return kept


def _changes(before, after):
    """Returns the differences in the form of the recordings."""
    found = {}
    for path in filter(_is_compared, {**before, **after}):
        old, new = before.get(path), after.get(path)
        if path.endswith("/"):
            change = {"change": "created"} if old is None else None
        elif new is None:
            change = {"path": path, "change": "deleted"}
        elif old is None:
            change = {"change": "created", "size": len(new["content"]), "mode": oct(new["mode"])}
        else:
            change = _rewriting(old, new)
        if change is not None:
            found[path] = _change({"path": path, **change})
    return found


def _rewriting(old, new):
    """Returns the change of an existing file, None when nobody wrote to it."""
    same_inode = old["inode"] == new["inode"]
    kind = "modified" if old["content"] != new["content"] else "rewritten-same-content"
    if old["modified"] == new["modified"]:
        return None
    return {"change": kind, "size": len(new["content"]), "same_inode": same_inode}


def _essential(events, replay):
    """Returns the events that say in which order the files were written."""
    kept = []
    for event in events:
        path = event.partition(" ")[2]
        if ".db" in path or not _is_compared(path):
            continue
        # In an empty directory nobody can watch the folder in time.
        if replay.is_empty and path.startswith("configurations/config_"):
            continue
        if not kept or kept[-1] != event:
            kept.append(event)
    return kept


def _add_tests():
    for file in sorted(os.listdir(_RECORDINGS)):
        name = file.removesuffix(".json")

        def test(self, name=name):
            self.replay(name)

        if name in NOT_REPLAYED:
            test = unittest.skip(NOT_REPLAYED[name])(test)
        setattr(RecordingTest, "test_" + name.replace("-", "_"), test)


_add_tests()

if __name__ == "__main__":
    unittest.main()
