#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT
"""Counts the instructions of the library's work beside their floor, on both versions of Qt, and holds them to bars.

The floor of reading is QDomDocument::setContent() alone, and that of writing the same tree built by hand. That of
showing, which makes the timeline and the screen of a message, is reading it; that of a slideshow, which reads the
message itself and drops its tree, is doing just that. What a text costs is compared with what it costs by way of the
tree, and looking up names that were chosen to have one hash with looking up others. Prints Markdown; the exit status is
1 when a bar is passed. script/instructions builds what this runs.
"""

import argparse
import collections
import os
import re
import subprocess
import sys
import tempfile

QTS = {"Qt 6": "build/qt6/bench/bench", "Qt 5": "build/qt5/bench/bench"}

FLOORS = {"parse": "floor-parse", "write": "floor-write", "show": "parse", "slideshow": "model", "text": "floor-text",
          "show-colliding": "show-differing"}

# What the work may cost of its floor. docs/performance.md says what stands in the way of Qt 5.
BARS = {
    ("parse", 3): {"Qt 6": 1.20, "Qt 5": 1.20},
    ("parse", 1000): {"Qt 6": 1.08, "Qt 5": 1.10},
    ("write", 3): {"Qt 6": 1.00, "Qt 5": 1.00},
    ("write", 1000): {"Qt 6": 1.00, "Qt 5": 1.00},
    ("show", 1000): {"Qt 6": 0.25, "Qt 5": 0.25},
    ("slideshow", 1000): {"Qt 6": 1.50, "Qt 5": 1.65},
    ("text", 1000): {"Qt 6": 0.50, "Qt 5": 0.60},
    ("show-colliding", 4000): {"Qt 6": 1.10, "Qt 5": 1.10},
}
# How far the cost of a slide may be from that in the message of 1,000. Finding parts by their names takes n log n.
STRAIGHT = collections.defaultdict(lambda: 0.05, slideshow=0.15)

Ratio = collections.namedtuple("Ratio", "work slides qt own floor ratio bar verdict")


def verdict(kept):
    return "kept" if kept else "**missed**"


def table(columns, rows):
    """A table in Markdown; a column whose heading begins with "#" is one of numbers."""
    lines = [[column.lstrip("#") for column in columns],
             ["--:" if column.startswith("#") else "---" for column in columns], *rows]
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def count(qt, contender, slides):
    """The instructions of one pass. The hash seed is fixed, so that every run counts the same."""
    with tempfile.NamedTemporaryFile() as file:
        subprocess.run(["valgrind", "--tool=callgrind", "--quiet", "--instr-atstart=no",
                        f"--callgrind-out-file={file.name}", QTS[qt], "once", contender, str(slides)],
                       check=True, stdout=subprocess.DEVNULL, env={**os.environ, "QT_HASH_SEED": "0"})
        return int(re.search(rb"^totals: (\d+)$", file.read(), re.MULTILINE)[1])


def of_floor():
    """The cost of each work with a bar, of its floor."""
    for (work, slides), bars in BARS.items():
        for qt, bar in bars.items():
            own, floor = count(qt, work, slides), count(qt, FLOORS[work], slides)
            yield Ratio(work, slides, qt, own, floor, own / floor, bar, verdict(own <= bar * floor))


def of_thousand(many, ratios):
    """The cost of a slide in a message of that many, of one in the message of 1,000."""
    for few in ratios:
        if few.slides == 1000:
            own, floor = count(few.qt, few.work, many) / many, few.own / 1000
            bar = STRAIGHT[few.work]
            yield Ratio(few.work, many, few.qt, own, floor, own / floor, bar, verdict(abs(own / floor - 1) <= bar))


def floor_table(ratios):
    return table(["Work", "#Slides", "Qt", "#Ratio", "#Bar", "", "#Instructions", "#Floor"],
                 [[r.work, f"{r.slides:,}", r.qt, f"{r.ratio:.3f}", f"{r.bar:.2f}", r.verdict, f"{r.own:,}",
                   f"{r.floor:,}"] for r in ratios])


def thousand_table(ratios):
    return table(["Work", "Qt", "#Slides", "#Ratio", "#Bar", "", "#Per slide", "#Per slide of 1,000"],
                 [[r.work, r.qt, f"{r.slides:,}", f"{r.ratio:.3f}", f"1 ± {r.bar:.2f}", r.verdict, f"{r.own:,.0f}",
                   f"{r.floor:,.0f}"] for r in ratios])


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument("--many", type=int, default=10000, metavar="SLIDES",
                         help="the message whose cost per slide is compared with that of 1,000 slides (%(default)s)")
    many = options.parse_args().many
    ratios = list(of_floor())
    print(floor_table(ratios), flush=True)
    straight = list(of_thousand(many, ratios))
    print(thousand_table(straight))
    return 0 if all(ratio.verdict == verdict(True) for ratio in ratios + straight) else 1


if __name__ == "__main__":
    sys.exit(main())
