// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// instructions WORK SLIDES: does the work for 3 slides and then for as many as asked, with callgrind counting the
// second. The first pass has the dynamic linker and the tables that Qt builds once out of the way. It is a small one,
// because a large one would leave a heap in pieces, and what malloc does with those is not what is asked about.

#include "work.h"

#include <cstdio>

#include <valgrind/callgrind.h>

int main(int argc, char **argv)
{
    const QByteArray name = argc == 3 ? argv[1] : "";
    const int slides = argc == 3 ? QByteArray(argv[2]).toInt() : 0;
    std::unique_ptr<Work> work = makeWork(name, 3);
    if (!work) {
        std::fputs("usage: instructions floor-parse|parse|floor-write|write SLIDES\n", stderr);
        return 2;
    }
    work->run();
    work.reset();

    work = makeWork(name, slides);
    CALLGRIND_START_INSTRUMENTATION;
    work->run();
    CALLGRIND_STOP_INSTRUMENTATION;
    return 0;
}
