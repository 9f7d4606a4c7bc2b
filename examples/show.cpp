// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

// show NAME...: lists the slides of a message: its SMIL is on standard input, and its other parts have these names.

#include <smilparser/mmslogger.h>
#include <smilparser/smilslideshow.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QMimeDatabase>

bool MMSLogger::qdebugEnabled = false;

int main(int argc, char *argv[])
{
    QFile file;
    const QByteArray smil = file.open(stdin, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QList<SmilPart> parts;
    for (int i = 1; i < argc; ++i) {
        SmilPart part;
        part.name = QString::fromLocal8Bit(argv[i]);
        part.type = QMimeDatabase().mimeTypeForFile(part.name, QMimeDatabase::MatchExtension).name();
        parts << part;
    }
    //! [show]
    const SmilSlideshow show(smil, parts);
    const SmilScreen screen(show.layout());
    qInfo() << show.title() << "on" << show.background() << screen.size() << show.error();
    for (int i = 0; i < show.count(); ++i) {
        const SmilSlide slide = show.slide(i);
        const QList<QRectF> places = screen.rects(slide.cues);
        qInfo() << "slide" << i + 1 << "from" << slide.begin << "to" << slide.end;
        for (int j = 0; j < int(slide.cues.size()); ++j) {
            const SmilCue &cue = slide.cues.at(j);
            qInfo() << cue.ref.src << "has index" << slide.parts.at(j) << places.at(j) << cue.background;
        }
    }
    //! [show]
}
