// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_CONTENDERS_H
#define SMILPARSER_BENCH_CONTENDERS_H

#include "slides.h"

#include <optional>
#include <vector>

/** What a pass makes, to be kept until the pass has been measured. */
struct Made {
    std::optional<SmilParser> parser;
    QDomDocument dom;
    QByteArray text;
    SmilDocument model;
    SmilTimeline timeline;
    SmilScreen screen;
    SmilSlideshow slideshow;
};

/** One of those that are compared: the library, its floor, or what a host could use instead. */
struct Contender {
    const char *name;
    Message (*message)(int slides);
    void (*pass)(const Message &message, Made &made); ///< reads, writes or lays out the message once
};

extern const std::vector<Contender> contenders;

/** Whether all come to the same values and to the same tree. Says on standard error which one does not. */
bool contendersAgree(int slides);

#endif
