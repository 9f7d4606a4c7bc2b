#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""Measures everything that docs/performance.md states, and writes it there and into docs/performance.svg.

What is generated stands in the page between <!-- generated: NAME --> and <!-- end -->. script/bench builds what this
runs.
"""

import json
import os
import platform
import re
import subprocess
import sys

from chart import chart
from instructions import QTS, floor_table, of_floor, of_thousand, thousand_table
from table import table

PAGE = "docs/performance.md"
CHART = "docs/performance.svg"

SIZES = (3, 1000, 100000)
WORKS = ("floor-parse", "parse", "floor-write", "write")
STRAIGHT_SIZES = (100, 1000, 10000, 100000)
REPETITIONS = 8
PEERS = {"xmlstream": "QXmlStreamReader", "libxml2": "libxml2", "pugixml": "pugixml"}


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding="utf-8").stdout


def progress(text):
    print(text, file=sys.stderr, flush=True)


def benchmark(folder):
    """
    What was timed, {name: nanoseconds}, and with which versions. Each time in a process of its own, because the next one
    would find the heap as the last one left it.
    """
    program = f"{folder}/benchmark"
    output(program, "check")
    times = {}
    # Round after round, so that a time in which the machine is busy does not meet all repetitions of one.
    for _ in range(REPETITIONS):
        for name in output(program, "--benchmark_list_tests").split():
            report = json.loads(output(program, "--benchmark_format=json", "--benchmark_min_time=0.1",
                                       f"--benchmark_filter=^{re.escape(name)}$"))
            times.setdefault(name, []).append(report["benchmarks"][0]["cpu_time"])
    # What else the machine does makes a run slower, never faster.
    return {name: min(runs) for name, runs in times.items()}, report["context"]


def duration(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def read_table(times):
    ways = ["library", *PEERS]
    rows = []
    for slides in SIZES:
        for qt, of_qt in times.items():
            floor = of_qt[f"read/floor/{slides}"]
            rows.append([f"{slides:,}", qt, *(f"{of_qt[f'read/{way}/{slides}'] / floor:.2f}" for way in ways),
                         duration(floor)])
    return table(["#Slides", "Qt", "#smilparser", *(f"#{name}" for name in PEERS.values()), "#Floor"], rows)


def write_table(times):
    rows = []
    for slides in SIZES:
        for qt, of_qt in times.items():
            floor = of_qt[f"write/floor/{slides}"]
            rows.append([f"{slides:,}", qt, f"{of_qt[f'write/library/{slides}'] / floor:.2f}", duration(floor)])
    return table(["#Slides", "Qt", "#smilparser", "#Floor"], rows)


def measure_table(times):
    rows = []
    for qt, of_qt in times.items():
        for name, floor in of_qt.items():
            way, part, measure = name.split("/", 2)
            if way in ("from", "to") and part == "floor":
                own = of_qt[f"{way}/library/{measure}"]
                rows.append([f"{way} text", f"`{measure}`", qt, f"{own / floor:.2f}", duration(own), duration(floor)])
    return table(["Measure", "", "Qt", "#Ratio", "#smilparser", "#Floor"], sorted(rows))


def read_chart(times):
    groups = []
    for qt, of_qt in times.items():
        floor = of_qt["read/floor/1000"]
        ways = {"read/floor/1000": "QDomDocument alone", "read/library/1000": "smilparser"}
        ways.update({f"read/{peer}/1000": name for peer, name in PEERS.items()})
        groups.append((qt, [(label, of_qt[name] / floor, f"({duration(of_qt[name] / 1000)} a slide)")
                            for name, label in ways.items()]))
    return chart("Time to read 1,000 slides, as multiples of QDomDocument::setContent() alone", groups, "smilparser")


def wall_time_table():
    times = {}
    for _ in range(REPETITIONS):
        for work in WORKS:
            for qt, folder in QTS.items():
                for slides in STRAIGHT_SIZES:
                    time = int(output(f"{folder}/walltime", work, str(slides))) / slides
                    times.setdefault((work, qt), {}).setdefault(slides, []).append(time)
    return table(["Work", "Qt", *(f"#{slides:,} slides" for slides in STRAIGHT_SIZES)],
                 [[*key, *(duration(min(runs)) for runs in of_sizes.values())] for key, of_sizes in times.items()])


def memory_table():
    rows = []
    for what, label in (("model", "The model"), ("dom", "The DOM"), ("both", "A parser, which holds both")):
        for qt, folder in QTS.items():
            rows.append([label, qt, *(f"{int(output(f'{folder}/memory', what, str(slides))) / slides:,.0f}"
                                      for slides in SIZES[1:])])
    return table(["Bytes a slide in", "Qt", *(f"#of {slides:,}" for slides in SIZES[1:])], rows)


def record_table():
    sizes = [dict(line.split() for line in output(f"{folder}/memory", "sizes").splitlines()) for folder in QTS.values()]
    return table(["Record", *(f"#Bytes, {qt}" for qt in QTS)],
                 [[f"`{record}`", *(of_qt[record] for of_qt in sizes)] for record in sizes[0]])


def processor():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        return re.search(r"^model name\s*: (.+)$", file.read(), re.MULTILINE).group(1)


def machine(contexts):
    versions = [context["qt"] for context in contexts]
    context = contexts[0]
    valgrind = output("valgrind", "--version").strip().replace("-", " ")
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return (f"{processor()}, {os.cpu_count()} cores, {platform.machine()}; {system}; Qt {' and Qt '.join(versions)}; "
            f"GCC {context['compiler']}, RelWithDebInfo (`-O2 -g -DNDEBUG`); libxml2 {context['libxml2']}, "
            f"pugixml {context['pugixml']}; {valgrind}.\n")


def fill(page, name, content):
    filled, places = re.subn(rf"(<!-- generated: {name} -->\n).*?(<!-- end -->)",
                             lambda place: f"{place[1]}\n{content}\n{place[2]}", page, flags=re.DOTALL)
    if places != 1:
        sys.exit(f"{PAGE}: {places} places for {name}")
    return filled


def main():
    progress("counting instructions")
    ratios = list(of_floor())
    straight = list(of_thousand(100000, ratios))
    progress("timing")
    timed = [benchmark(folder) for folder in QTS.values()]
    times = {qt: of_qt for qt, (of_qt, _) in zip(QTS, timed)}
    progress("timing in fresh processes, and measuring memory")
    generated = {
        "instructions": floor_table(ratios),
        "straight-instructions": thousand_table(straight),
        "read": read_table(times),
        "write": write_table(times),
        "measures": measure_table(times),
        "wall-time": wall_time_table(),
        "memory": memory_table(),
        "records": record_table(),
        "machine": machine([context for _, context in timed]),
    }
    with open(PAGE, encoding="utf-8") as file:
        page = file.read()
    for name, content in generated.items():
        page = fill(page, name, content)
    with open(PAGE, "w", encoding="utf-8") as file:
        file.write(page)
    with open(CHART, "w", encoding="utf-8") as file:
        file.write(read_chart(times))


if __name__ == "__main__":
    main()
