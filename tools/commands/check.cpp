// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/findings.h"
#include "commands/commands.h"

#include <QtCore/QIODevice>

bool check(Message &message, const QStringList &ignored, QIODevice &out)
{
    Findings found;
    const QDomElement smil = message.outcome == SmilParser::Complete ? message.dom.documentElement() : QDomElement();
    findFaults(smil, message, found);
    if (!smil.isNull()) {
        findLosses(smil, found);
        findTiming(smil, message.document.header.layout, found);
    }
    const QStringList lines = found.lines(message.file, ignored);
    for (const QString &line : lines) {
        out.write(line.toUtf8() + '\n');
    }
    return !lines.isEmpty();
}

static Result runCheck(const QString &file, const Arguments &arguments, QIODevice &out)
{
    return withMessage(file, arguments, [&](Message &message) {
        return Result{!check(message, arguments.ignored, out), {}};
    });
}

const Command checkCommand = {"check",
                              "FILE...",
                              "parts ignore",
                              "Reports what is odd in each message, and what is lost when it is written back.",
                              "smiltool check --ignore lost message.smil",
                              runCheck};
