// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// walltime WORK SLIDES: the nanoseconds that the work takes, once: a second pass would find the heap as the first one
// left it. A message of 3 slides, which leaves no heap to speak of, has the dynamic linker out of the way.

#include "work.h"

#include <QtCore/QElapsedTimer>

#include <cstdio>

int main(int argc, char **argv)
{
    const QByteArray name = argc == 3 ? argv[1] : "";
    const std::unique_ptr<Work> first = makeWork(name, 3);
    const std::unique_ptr<Work> work = makeWork(name, argc == 3 ? QByteArray(argv[2]).toInt() : 0);
    if (!first || !work) {
        std::fputs("usage: walltime floor-parse|parse|floor-write|write SLIDES\n", stderr);
        return 2;
    }
    first->run();
    QElapsedTimer timer;
    timer.start();
    work->run();
    std::printf("%lld\n", static_cast<long long>(timer.nsecsElapsed()));
    return 0;
}
