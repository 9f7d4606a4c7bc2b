// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// show NAME...: tells when and where each part of those names is shown by the message on standard input.

#include <smilparser/mmslogger.h>
#include <smilparser/smilplayback.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QSet>

#include <cstdio>

bool MMSLogger::qdebugEnabled = false;

int main(int argc, char *argv[])
{
    QFile file;
    const QByteArray bytes = file.open(stdin, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    //! [show]
    SmilParser parser(bytes);
    const SmilScreen screen(parser.parse().header.layout);
    const SmilTimeline timeline(parser.dom().documentElement());
    SmilParts parts;
    for (int part = 1; part < argc; ++part) {
        parts.add(part, QString::fromLocal8Bit(argv[part]));
    }
    QSet<int> named;
    for (int i = 0; i < int(timeline.slideBegins().size()); ++i) {
        const double end = timeline.slideBegins().value(i + 1, qInf());
        const QList<SmilCue> cues = timeline.cuesBetween(timeline.slideBegins().at(i), end);
        const QList<QRectF> places = screen.rects(cues);
        for (int j = 0; j < int(cues.size()); ++j) {
            const int part = parts.find(cues.at(j).ref.src);
            named.insert(part);
            qInfo() << "slide" << i + 1 << cues.at(j).begin << (part < 0 ? "missing" : argv[part]) << places.at(j);
        }
    }
    for (int part = 1; part < argc; ++part) {
        if (!named.contains(part)) {
            qInfo() << "after" << timeline.duration() << argv[part];
        }
    }
    //! [show]
    return timeline.slideBegins().isEmpty() ? 1 : 0;
}
