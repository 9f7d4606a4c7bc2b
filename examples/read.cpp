// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// Lists what plays on each slide of the message on standard input.

#include <smilparser/mmslogger.h>
#include <smilparser/smilparser.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

int main()
{
    QFile file;
    const QByteArray bytes = file.open(stdin, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    //! [read]
    SmilParser parser(bytes);
    SmilParser::Outcome outcome;
    QString error;
    int line = 0;
    int column = 0;
    const SmilDocument &message = parser.parse(SmilParser::ClockDurations, &outcome, &error, &line, &column);
    if (outcome == SmilParser::NotWellFormed) {
        qWarning() << error << "at" << line << column;
    }
    for (const SmilNode &slide : message.body.root.children) {
        qInfo() << "slide," << slide.dur.toString();
        for (const SmilRef &ref : slide.refs) {
            qInfo() << "  " << ref.src << "in" << ref.region;
        }
    }
    //! [read]
    return outcome == SmilParser::Complete ? 0 : 1;
}
