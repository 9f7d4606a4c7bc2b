#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""Measures everything that docs/performance.md states, and writes it there and into docs/figures/performance.svg.

What is generated stands in the page between <!-- generated: NAME --> and <!-- end -->. script/bench builds what this
runs.
"""

import itertools
import json
import os
import pathlib
import platform
import re
import subprocess
import sys

from chart import chart
from instructions import QTS, floor_table, of_floor, of_thousand, table, thousand_table

PAGE = pathlib.Path("docs/performance.md")
CHART = pathlib.Path("docs/figures/performance.svg")

SIZES = (3, 1000, 100000)
STRAIGHT_SIZES = (100, 1000, 10000, 100000)
REPETITIONS = 8
READERS = {"parse": "smilparser", "xmlstream": "QXmlStreamReader"}
HOLDERS = {"model": "The model", "floor-parse": "The DOM", "parse": "A parser, which holds both"}


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout


def benchmark(program):
    """
    What was timed, {name: nanoseconds}, and with which versions. Each time is taken in a process of its own, because the
    next one would find the heap as the last one left it.
    """
    output(program, "check")
    times = {}
    # Round after round, so that a time in which the machine is busy does not meet all repetitions of one.
    for _ in range(REPETITIONS):
        for name in output(program, "--benchmark_list_tests", "--benchmark_filter=-^(model|show)").split():
            report = json.loads(output(program, "--benchmark_format=json", "--benchmark_min_time=0.1",
                                       f"--benchmark_filter=^{name}$"))
            times.setdefault(name, []).append(report["benchmarks"][0]["cpu_time"])
    # What else the machine does makes a run slower, never faster.
    return {name: min(runs) for name, runs in times.items()}, report["context"]


def once(qt, contender, slides):
    """The nanoseconds of one pass, and the bytes that it leaves in use; both of them for each slide."""
    nanoseconds, size = output(QTS[qt], "once", contender, str(slides)).split()
    return int(nanoseconds) / slides, int(size) / slides


def duration(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def message_table(times, floor_name, contenders):
    rows = []
    for slides, (qt, of_qt) in itertools.product(SIZES, times.items()):
        floor = of_qt[f"{floor_name}/{slides}"]
        rows.append([f"{slides:,}", qt, *(f"{of_qt[f'{name}/{slides}'] / floor:.2f}" for name in contenders),
                     duration(floor)])
    return table(["#Slides", "Qt", *(f"#{label}" for label in contenders.values()), "#Floor"], rows)


def measure_table(times):
    rows = []
    for qt, of_qt in times.items():
        for name, floor in of_qt.items():
            if "/floor/" in name:
                way, _, measure = name.split("/")
                own = of_qt[f"{way}/library/{measure}"]
                rows.append([f"{way} text", f"`{measure}`", qt, f"{own / floor:.2f}", duration(own), duration(floor)])
    return table(["Measure", "", "Qt", "#Ratio", "#smilparser", "#Floor"], sorted(rows))


def read_chart(times):
    groups = []
    for qt, of_qt in times.items():
        floor = of_qt["floor-parse/1000"]
        bars = {label: of_qt[f"{name}/1000"] for name, label in READERS.items()}
        groups.append((qt, [(label, time / floor, f"({duration(time / 1000)} a slide)")
                            for label, time in {"QDomDocument alone": floor, **bars}.items()]))
    return chart("Time to read 1,000 slides, as multiples of QDomDocument::setContent() alone", groups, "smilparser")


def wall_time_table():
    times = {}
    works = ("floor-parse", "parse", "floor-write", "write")
    for _, work, qt, slides in itertools.product(range(REPETITIONS), works, QTS, STRAIGHT_SIZES):
        times.setdefault((work, qt), {}).setdefault(slides, []).append(once(qt, work, slides)[0])
    return table(["Work", "Qt", *(f"#{slides:,} slides" for slides in STRAIGHT_SIZES)],
                 [[*key, *(duration(min(runs)) for runs in of_sizes.values())] for key, of_sizes in times.items()])


def memory_table():
    return table(["Bytes a slide in", "Qt", *(f"#of {slides:,}" for slides in SIZES[1:])],
                 [[label, qt, *(f"{once(qt, name, slides)[1]:,.0f}" for slides in SIZES[1:])]
                  for name, label in HOLDERS.items() for qt in QTS])


def machine(contexts):
    processor = re.search(r"^model name\s*: (.+)$", pathlib.Path("/proc/cpuinfo").read_text("utf-8"), re.MULTILINE)[1]
    versions = [context["qt"] for context in contexts]
    context = contexts[0]
    valgrind = output("valgrind", "--version").strip().replace("-", " ")
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return (f"{processor}, {os.cpu_count()} cores, {platform.machine()}; {system}; Qt {' and Qt '.join(versions)}; "
            f"GCC {context['compiler']}, RelWithDebInfo (`-O2 -g -DNDEBUG`); {valgrind}.\n")


def fill(page, name, content):
    filled, places = re.subn(rf"(<!-- generated: {name} -->\n).*?(<!-- end -->)",
                             lambda place: f"{place[1]}\n{content}\n{place[2]}", page, flags=re.DOTALL)
    if places != 1:
        sys.exit(f"{PAGE}: {places} places for {name}")
    return filled


def main():
    print("counting instructions", file=sys.stderr)
    ratios = list(of_floor())
    straight = list(of_thousand(100000, ratios))
    print("timing", file=sys.stderr)
    timed = [benchmark(program) for program in QTS.values()]
    times = {qt: of_qt for qt, (of_qt, _) in zip(QTS, timed)}
    print("timing in fresh processes, and measuring memory", file=sys.stderr)
    page = PAGE.read_text("utf-8")
    for name, content in {
        "instructions": floor_table(ratios),
        "straight-instructions": thousand_table(straight),
        "read": message_table(times, "floor-parse", READERS),
        "write": message_table(times, "floor-write", {"write": "smilparser"}),
        "measures": measure_table(times),
        "wall-time": wall_time_table(),
        "memory": memory_table(),
        "machine": machine([context for _, context in timed]),
    }.items():
        page = fill(page, name, content)
    PAGE.write_text(page, "utf-8")
    CHART.write_text(read_chart(times), "utf-8")


if __name__ == "__main__":
    main()
