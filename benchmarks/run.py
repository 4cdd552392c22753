#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

"""run.py BIN RESULTS: measures what is built in BIN, prints the table and writes it to RESULTS.

Every work stands beside a floor measured in the same run, so that a ratio means something on any
machine. Work and floor are run in turn and their medians are compared; what runs in one thread is
measured in processor time, which others on the machine disturb least.
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

import desktop_rows
from table import Row, idle_row, milliseconds, timed

DRAIN_US = 100_000


def wall_us(command, environment):
    """The wall time of one run of `command`, in microseconds."""
    started = time.perf_counter()
    subprocess.run(command, env=environment, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, check=True)
    return (time.perf_counter() - started) * 1e6


def in_turn(work, floor, environment, runs):
    """The medians of two commands, run in turn."""
    pairs = [(wall_us(work, environment), wall_us(floor, environment)) for _ in range(runs + 1)]
    return [statistics.median(column) for column in zip(*pairs[1:])]


def logic_medians(program):
    """The median of each benchmark of the logic, in microseconds."""
    done = subprocess.run(
        [program, "--benchmark_format=json", "--benchmark_repetitions=9",
         "--benchmark_enable_random_interleaving=true",
         "--benchmark_report_aggregates_only=true"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    return {run["run_name"].removesuffix("/real_time"):
            run["real_time" if run["run_name"].endswith("/real_time") else "cpu_time"]
            for run in json.loads(done.stdout)["benchmarks"] if run["aggregate_name"] == "median"}


def peak_bytes(program, name):
    """The peak memory of the process that runs the benchmark `name` once."""
    child = subprocess.Popen([program, f"--benchmark_filter={name}$|{name}/real_time$"],
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, _, usage = os.wait4(child.pid, 0)
    return usage.ru_maxrss * 1024


def watching_row(command, environment):
    """What watching costs while nothing happens."""
    with subprocess.Popen(command, env=environment, stdout=subprocess.PIPE) as watcher:
        watcher.stdout.readline()  # it has read the files
        row = idle_row("watching", watcher.pid)
        watcher.terminate()
    return row


def process_rows(binaries):
    """torvictl as a whole process, against its floor and against gcloud."""
    with tempfile.TemporaryDirectory() as home:
        directory = home + "/gcloud"
        subprocess.run([binaries / "SampleDirectoryMaker", directory, "5", "5"], check=True)
        environment = {"HOME": home, "PATH": os.environ["PATH"], "CLOUDSDK_CONFIG": directory}
        program = binaries / "torvictl"
        work, floor = in_turn([program, "status", "--json"], [binaries / "StatusFloor"],
                              environment, 100)
        yield timed("`torvictl status`, exec to exit", work, floor, "at most 1.5 times", 1.5)
        if gcloud := shutil.which("gcloud"):
            slow = statistics.median(
                wall_us([gcloud, "config", "list"], environment) for _ in range(5))
            yield timed("… against `gcloud config list`", work, slow, "at most 1/50", 1 / 50)
        yield watching_row([program, "watch"], environment)


def logic_rows(program):
    """The logic, by function."""
    took = logic_medians(program)

    def pair(title, work, floor, *goal):
        return timed(title, took[work], took[floor], *goal)

    yield pair("`reloadFromFiles()`, 5 configurations, 5 accounts", "refresh/5",
               "floorSystemCalls/5", "at most 2 times", 2)
    yield pair("… 200 configurations, against 5", "refresh/200", "refresh/5", "at most 40 times",
               40)
    yield pair("decoding 10,000 projects (3.4 MB)", "decodeProjects", "floorBareParse",
               "at most 3 times, under 10 ms", 3, 10_000)
    yield pair("… against a bare parse by Qt's JSON", "decodeProjects", "qtJson", "less", 1)
    child = took["floorSpawnAndWait"]
    extra = took["executeAtOnce"] - DRAIN_US - child
    yield Row("`execute`, beyond the child and 0.1 s", milliseconds(extra), milliseconds(child),
              "–", "at most 5 ms", extra <= 5_000)
    yield timed("50 MB of output, less 0.1 s", took["executeFlood"] - DRAIN_US, took["floorFlood"],
                "at most 2 times", 2)
    for title, work in (("the well-known list", "locateByWellKnownList"),
                        ("a start-up file", "locateByStartUpFile")):
        yield pair("locating by " + title, work, "floorAccessCalls", "under 1 ms", float("inf"),
                   1_000)


def memory_row(program):
    """The memory that a flood takes, beyond that of a benchmark without one."""
    idle = peak_bytes(program, "floorAccessCalls")
    work = peak_bytes(program, "executeFlood") - idle
    floor = peak_bytes(program, "floorFlood") - idle
    return Row("50 MB of output, memory", f"{work / 1e6:.3g} MB", f"{floor / 1e6:.3g} MB",
               f"{work / floor:.3g}", "at most 4 times", work <= 4 * floor)


def main(binaries, results):
    binaries = pathlib.Path(binaries)
    program = binaries / "LogicBenchmarks"
    rows = [*process_rows(binaries), *logic_rows(program), memory_row(program),
            *desktop_rows.rows(binaries)]
    lines = ["# Measured speeds", "",
             f"Written by `./dev bench` on {os.cpu_count()} processors, at a load of "
             f"{os.getloadavg()[1]:.1f}. Figures are medians; each floor was measured in the same "
             "run.", "",
             "| work | measured | floor | ratio | goal | met |", "|---|---|---|---|---|---|"]
    for row in rows:
        lines.append(f"| {' | '.join(row[:-1])} | {'yes' if row.met else 'NO'} |")
    text = "\n".join(lines) + "\n"
    pathlib.Path(results).write_text(text, encoding="utf-8")
    print(text, end="")


if __name__ == "__main__":
    main(*sys.argv[1:])
