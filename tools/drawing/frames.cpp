// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/frames.h"
#include "base/bounds.h"
#include "base/escaping.h"
#include "base/timetext.h"

#include <QtCore/qnumeric.h>

static const char16_t signs[] = {u'\u00b6', u'\u25a3', u'\u266a', u'\u25b6', u'\u25c6'}; // by SmilRef::Type

static QString withSign(const SmilRef &ref, const QString &text)
{
    // The end of a long name has its extension.
    const bool isLong = text.size() > bounds::name;
    return QChar(signs[ref.type]) + QLatin1Char(' ')
        + printable(isLong ? shortened(text, bounds::name - 10) + text.right(10) : text);
}

QString nameOf(const SmilRef &ref)
{
    return withSign(ref, ref.src.isEmpty() ? QStringLiteral("?") : ref.src);
}

QString wordsFor(const SmilCue &cue)
{
    return cue.alt.isEmpty() ? nameOf(cue.ref) : withSign(cue.ref, cue.alt);
}

/** Of all that plays in that time, as much as is told apart. The cues are in the order in which they begin. */
static QList<SmilCue> playing(const QList<SmilCue> &cues, double begin, double end)
{
    QList<SmilCue> some;
    for (const SmilCue &cue : cues) {
        if (cue.begin >= end || some.size() == bounds::media) {
            break;
        }
        if (cue.end > begin && cue.end > cue.begin) {
            some.append(cue);
        }
    }
    return some;
}

QList<Frame> framesOf(const SmilTimeline &timeline)
{
    QList<Frame> frames;
    const QList<SmilCue> cues = timeline.cues();
    const QList<double> slides = timeline.slideBegins().mid(0, bounds::frames + 1);
    for (int i = 0; i < qMin(int(slides.size()), bounds::frames); ++i) {
        const double begin = slides.at(i);
        const double length = slides.value(i + 1, timeline.duration()) - begin;
        frames.append({QStringLiteral("%1 \u00b7 %2 \u00b7 %3").arg(i + 1).arg(clockText(begin), lengthText(length)),
                       playing(cues, begin, slides.value(i + 1, qInf()))});
    }
    return frames;
}
