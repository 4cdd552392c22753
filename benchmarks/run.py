#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

"""run.py BIN RESULTS: measures what is built in BIN, prints the table and writes it to RESULTS.

Every work stands beside a floor measured in the same run, so that a ratio means something on any
machine. Whole processes are run in turn, work and floor, and their medians are compared.
"""

import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

DRAIN_US = 100_000


def wall_us(command, environment):
    """The wall time of one run of `command`, in microseconds."""
    started = time.perf_counter()
    subprocess.run(command, env=environment, stdout=subprocess.DEVNULL, check=True)
    return (time.perf_counter() - started) * 1e6


def in_turn(work, floor, environment, runs):
    """The medians of two commands, run in turn."""
    pairs = [(wall_us(work, environment), wall_us(floor, environment)) for _ in range(runs + 1)]
    return [statistics.median(column) for column in zip(*pairs[1:])]


def logic_medians(program):
    """The median of each benchmark of the logic, in microseconds."""
    done = subprocess.run(
        [program, "--benchmark_format=json", "--benchmark_repetitions=5",
         "--benchmark_report_aggregates_only=true"],
        stdout=subprocess.PIPE, check=True)
    return {run["run_name"].removesuffix("/real_time"): run["real_time"]
            for run in json.loads(done.stdout)["benchmarks"] if run["aggregate_name"] == "median"}


def peak_bytes(program, name):
    """The peak memory of the process that runs the benchmark `name` once."""
    child = subprocess.Popen([program, f"--benchmark_filter={name}$|{name}/real_time$"],
                             stdout=subprocess.DEVNULL)
    _, _, usage = os.wait4(child.pid, 0)
    return usage.ru_maxrss * 1024


def status_rows(binaries):
    """torvictl as a whole process, against its floor and against gcloud."""
    with tempfile.TemporaryDirectory() as home:
        directory = home + "/gcloud"
        subprocess.run([binaries / "SampleDirectoryMaker", directory, "5", "5"], check=True)
        environment = {"HOME": home, "PATH": os.environ["PATH"], "CLOUDSDK_CONFIG": directory}
        status = [binaries / "torvictl", "status", "--json"]
        work, floor = in_turn(status, [binaries / "StatusFloor"], environment, 40)
        yield "`torvictl status`, exec to exit", work, floor, "at most 1.5 times", work / floor
        if gcloud := shutil.which("gcloud"):
            slow = statistics.median(
                wall_us([gcloud, "config", "list"], environment) for _ in range(5))
            yield "… against `gcloud config list`", work, slow, "at most 1/50", work / slow


def logic_rows(program):
    """The logic, by function."""
    took = logic_medians(program)

    def pair(title, work, floor, goal):
        return title, took[work], took[floor], goal, took[work] / took[floor]

    yield pair("`reloadFromFiles()`, 5 configurations, 5 accounts", "refresh/5",
               "floorSystemCalls/5", "at most 2 times")
    yield pair("… 200 configurations, against 5", "refresh/200", "refresh/5", "at most 40 times")
    yield pair("decoding 10,000 projects (3.4 MB)", "decodeProjects", "floorBareParse",
               "at most 3 times, under 10 ms")
    yield pair("… against a bare parse by Qt's JSON", "decodeProjects", "qtJson", "less")
    extra = took["executeAtOnce"] - took["floorSpawnAndWait"] - DRAIN_US
    yield ("`execute`, beyond the child and 0.1 s", extra, took["floorSpawnAndWait"],
           "at most 5 ms", None)
    flood = took["executeFlood"] - DRAIN_US
    yield ("50 MB of output, less 0.1 s", flood, took["floorFlood"], "at most 2 times",
           flood / took["floorFlood"])
    yield pair("locating by the well-known list", "locateByWellKnownList", "floorAccessCalls",
               "under 1 ms")
    yield pair("locating by a start-up file", "locateByStartUpFile", "floorAccessCalls",
               "under 1 ms")


def memory_row(program):
    """The memory that a flood takes, beyond that of a benchmark without one."""
    idle = peak_bytes(program, "floorAccessCalls")
    work = peak_bytes(program, "executeFlood") - idle
    floor = peak_bytes(program, "floorFlood") - idle
    return "50 MB of output, memory (MB)", work / 1e3, floor / 1e3, "at most 4 times", work / floor


def main(binaries, results):
    binaries = pathlib.Path(binaries)
    program = binaries / "LogicBenchmarks"
    rows = [*status_rows(binaries), *logic_rows(program), memory_row(program)]
    lines = ["# Measured speeds", "",
             "Written by `./dev bench`. Milliseconds are medians; each floor was measured in the "
             "same run.", "",
             "| work | ms | floor, ms | ratio | goal |", "|---|---|---|---|---|"]
    for title, work, floor, goal, ratio in rows:
        shown = "–" if ratio is None else f"{ratio:.3g}"
        lines.append(f"| {title} | {work / 1e3:.3g} | {floor / 1e3:.3g} | {shown} | {goal} |")
    text = "\n".join(lines) + "\n"
    pathlib.Path(results).write_text(text, encoding="utf-8")
    print(text, end="")


if __name__ == "__main__":
    main(*sys.argv[1:])
