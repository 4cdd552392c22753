#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT
"""Plays one script of commands on the stand-in and on the real gcloud, and compares.

    compare.py [-v] [CHAPTER...]     -v: show what differs

After each command: the exit code, standard output, the error text, and all files below the
configuration directory. Exits with 0 when everything is the same, 1 when something differs, 77 when
the real gcloud cannot be run here.
"""

import os
import shutil
import subprocess
import sys

import api_server
import looks
import script
from harness import DEADLINE, GCLOUD, Run, Scratch, run
from standin.directory import Directory

SKIPPED = 77
_BROWSER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "browser")


def obstacle():
    """Returns why the comparison cannot be made here, or None."""
    for program in ("gcloud", "openssl"):
        if shutil.which(program) is None:
            return f"{program} is not installed"
    return api_server.obstacle()


class Player:
    """One gcloud with a configuration directory of its own."""

    def __init__(self, scratch, program, **environment):
        self.scratch = scratch
        self.program = program
        self._environment = environment

    def play(self, step):
        """Runs the step; returns {what: how it looks}, ready for comparison."""
        self._prepare(step)
        logs = len(looks.logs(self.scratch.config))
        done = self._run(step, logs)
        return {
            "exit code": done.exit,
            "standard output": looks.output(done.stdout),
            "standard error": looks.text(done.stderr, self.scratch.path),
            "log files": len(looks.logs(self.scratch.config)) - logs,
            **looks.files(self.scratch.config),
        }

    def _run(self, step, logs):
        """Runs the command, a second time when it hangs before it has done anything.

        The real gcloud does that once in some hundred runs, most of all on a busy machine: it
        writes nothing, not even its log file, and never ends.
        """
        environment = self._step_environment(step)
        process = Run(step.arguments, environment, self.program)
        try:
            return process.finish()
        except subprocess.TimeoutExpired:
            process.kill()
            if len(looks.logs(self.scratch.config)) > logs:
                raise
            print(f"started again after {DEADLINE} s without a sign of life: {step}")
            return run(step.arguments, environment, self.program)

    def _prepare(self, step):
        path = os.path.join(self.scratch.config, "application_default_credentials.json")
        if step.adc is False and os.path.exists(path):
            os.remove(path)
        elif step.adc is not None and step.adc is not False:
            Directory(self.scratch.config).write_adc(step.adc)
        for name, text in step.files.items():
            with open(os.path.join(self.scratch.config, name), "w", encoding="utf-8") as file:
                file.write(text)

    def _step_environment(self, step):
        more = dict(step.environment)
        if step.user is not None:
            more |= {"DISPLAY": ":99", "BROWSER": _BROWSER, "TORVI_DEMO_USER": step.user}
            more["TORVI_DEMO_SIGN_IN_SECONDS"] = "0"
        return self.scratch.environment(**self._environment, **more)


def _differences(real, standin):
    return [
        (what, real.get(what), standin.get(what))
        for what in {**real, **standin}
        if real.get(what) != standin.get(what)
    ]


def _report(step, differences, verbose):
    print(("DIFFERENT  " if differences else "same       ") + str(step), flush=True)
    for what, real, standin in differences if verbose else []:
        print(f"  {what}:\n    gcloud:   {real!r}\n    stand-in: {standin!r}")
    return bool(differences)


def compare(chapter, verbose):
    """Plays the chapter; returns the number of steps that differ and of all its steps."""
    with Scratch() as real_scratch, Scratch() as own_scratch:
        certificate, key = api_server.make_certificate(real_scratch.path)
        common = {
            "CLOUDSDK_CORE_DISABLE_USAGE_REPORTING": "true",
            "CLOUDSDK_COMPONENT_MANAGER_DISABLE_UPDATE_CHECK": "true",
            "CLOUDSDK_CORE_CHECK_GCE_METADATA": "false",
        }
        world = own_scratch.write_json("world.json", api_server.world())
        with api_server.ApiServer(real_scratch.path, certificate, key) as server:
            real = Player(real_scratch, shutil.which("gcloud"), **common, **server.environment())
            own = Player(own_scratch, GCLOUD, **common, TORVI_STANDIN_WORLD=world)
            for scratch in (real_scratch, own_scratch):
                script.build(Directory(scratch.config), key)
            steps = script.CHAPTERS[chapter](key)
            return _play(steps, real, own, verbose), len(steps)


def _play(steps, real, own, verbose):
    """Plays the steps and returns how many of them differ in more than the step before."""
    different, known = 0, []
    for step in steps:
        found = _differences(real.play(step), own.play(step))
        new = [difference for difference in found if difference not in known]
        known = found
        different += _report(step, new, verbose)
    return different


def main(arguments):
    reason = obstacle()
    if reason is not None:
        print(f"not compared: {reason}")
        return SKIPPED
    chapters = [word for word in arguments if word != "-v"] or list(script.CHAPTERS)
    results = [compare(chapter, "-v" in arguments) for chapter in chapters]
    different, count = map(sum, zip(*results))
    print(f"{count} commands compared, {different} differ")
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
