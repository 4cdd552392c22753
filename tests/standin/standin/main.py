# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""One run of the stand-in, from the command line to the exit code."""

import os
import re
import signal
import time

from . import arguments
from .catalogue import COMMANDS
from .errors import FEEDBACK, Crash, GcloudError, HttpFailure, LoadFailure, UsageError
from .files import rewrite
from .log import Log
from .session import Session, data_file


def main(argv):
    """Plays the command and returns its exit code."""
    command = arguments.find(argv)
    session = Session(os.environ, command.words if command else "")
    try:
        return _run(session, command, argv)
    except KeyboardInterrupt:
        session.output.err("\n\nCommand killed by keyboard interrupt\n\n")
        signal.signal(signal.SIGINT, signal.SIG_DFL)
        os.kill(os.getpid(), signal.SIGINT)
    except BrokenPipeError:
        return 1
    return 1


def _run(session, command, argv):
    try:
        if not any(re.match("--configuration=.", word) for word in argv):
            session.configurations.prepare()
        session.property("core", "account")
    except LoadFailure as failure:
        return _fail_to_load(session, str(failure))
    session.pace.starting()
    session.log = Log(session.directory)
    session.log.debug(f"Running {['gcloud', *argv]}")
    session.faults.strike("start")
    code = _play(session, command, argv)
    if code == 0:
        _note_survey(session)
    session.faults.strike("end")
    session.log.close()
    session.pace.ending()
    return code


def _play(session, command, argv):
    try:
        if command is None:
            raise UsageError("gcloud", _not_played(argv))
        command.run(session, arguments.parse(command, argv))
        return 0
    except UsageError as error:
        session.err(f"ERROR: ({error.command}) {error.message}\n")
        return 2
    except GcloudError as error:
        if error.hint is not None:
            session.err(f"ERROR: {error.hint}\n")
        session.err(f"ERROR: ({command.name}) {error.message}\n")
    except HttpFailure as failure:
        session.err(f"ERROR: ({command.name}) {_unexpected_answer(failure)}\n")
    except Crash as crash:
        session.err(f"ERROR: gcloud crashed ({crash.kind}): {crash.message}\n")
        for line in FEEDBACK:
            session.err(line)
    except LoadFailure as failure:
        session.err(f"ERROR: ({command.name}) {failure}\n")
    return 1


def _not_played(argv):
    asked = " ".join(argv) or "nothing"
    played = "\n  ".join(command.words for command in COMMANDS)
    return f"The stand-in was asked for {asked!r}; it plays only:\n  {played}"


def _unexpected_answer(failure):
    headers = {
        "server": "api-stand-in",
        "date": time.strftime("%a, %d %b %Y %H:%M:%S GMT", time.gmtime()),
        "content-type": "application/json; charset=UTF-8",
        "content-length": str(len(failure.body)),
        "status": failure.status,
    }
    return (
        f"HttpError accessing <{failure.url}>: response: <{headers}>, content <{failure.body}>\n"
        "This may be due to network connectivity issues. Please check your network settings, "
        "and the status of the service you are trying to reach."
    )


def _fail_to_load(session, message):
    """Prints the traceback that gcloud prints when a property file is broken; leaves no log."""
    with open(data_file("load-failure.txt"), encoding="utf-8") as file:
        text = file.read().replace("$MESSAGE", message)
    end_of_advice = text.index("\n\nTraceback")
    session.output.err(text[:end_of_advice])
    session.output.err(text[end_of_advice:])
    return 1


def _note_survey(session):
    """Creates the file that keeps gcloud from asking for opinions, once."""
    disabled = session.property("survey", "disable_prompts") or ""
    path = os.path.join(session.directory, ".last_survey_prompt.yaml")
    if disabled.lower() in ("true", "1", "yes", "y", "on") or os.path.exists(path):
        return
    rewrite(path, f"last_prompt_time: {time.time()!r}\n")
