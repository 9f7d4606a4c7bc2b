// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "commands/commands.h"

#include <QtCore/QIODevice>

void render(const Message &message, QIODevice &out)
{
    out.write(printableXml(QString::fromUtf8(SmilParser(message.document).toXml(2))).toUtf8());
}

static Result runRender(const QString &file, const Arguments &arguments, QIODevice &out)
{
    const auto use = [&](const Message &message) {
        if (message.smil.isEmpty()) {
            return failure(file, QStringLiteral("has no SMIL part"));
        }
        if (message.outcome == SmilParser::Complete) {
            render(message, out);
        }
        return Result();
    };
    const SmilParser::ReadOptions all = SmilParser::ClockDurations | SmilParser::KeepRootSize;
    return withMessage(file, arguments, use, arguments.bare ? SmilParser::AsWritten : all);
}

const Command renderCommand = {"render",
                               "FILE...",
                               "bare",
                               "Prints each message as read and written back.",
                               "smiltool render message.smil > written.smil",
                               runRender};
