// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "check/findings.h"

#include <smilparser/smilplayback.h>

static QString subjectOf(SmilRef::Type kind)
{
    return kind == SmilRef::Text ? QStringLiteral("two texts at the same time ")
        : kind == SmilRef::Audio ? QStringLiteral("two sounds at the same time ")
                                 : QStringLiteral("two pictures or films at the same time ");
}

void findTiming(const QDomElement &smil, const SmilLayout &layout, Findings &found)
{
    const SmilScreen screen(layout);
    const SmilTimeline timeline(smil);
    const QList<SmilCue> cues = timeline.cues();
    const int bodyLine = smil.firstChildElement(QStringLiteral("body")).lineNumber();
    std::map<std::pair<QString, int>, double> ends; // of what plays, by its kind and region
    double seen = 0; // until when something can be seen
    const auto findBlank = [&](double until) {
        if (seen < until) {
            found.add("blank-time", bodyLine, QStringLiteral("nothing can be seen:"),
                      QStringLiteral("from %1 to %2").arg(clockText(seen), clockText(until)));
        }
    };
    // They are in the order in which they begin: one comes in addition if any of those before it still plays.
    for (const SmilCue &cue : cues) {
        if (!(cue.begin < cue.end)) {
            continue;
        }
        const int region = screen.regionIndex(cue.ref.region);
        const QString subject = subjectOf(SmilRef::Type(cue.ref.type))
            + (region < 0 ? QStringLiteral("without a region:")
                          : QStringLiteral("in region %1:").arg(excerpt(cue.ref.region)));
        double &end = ends[{subject, region}];
        if (cue.begin < end) {
            found.add("crowded-slide", cue.line < 0 ? bodyLine : cue.line, subject, excerpt(cue.ref.src));
        }
        end = qMax(end, cue.end);
        if (cue.ref.type != SmilRef::Audio) {
            findBlank(cue.begin);
            seen = qMax(seen, cue.end);
        }
    }
    if (ends.empty()) {
        found.add("empty-timeline", bodyLine, QStringLiteral("nothing plays"));
    } else {
        findBlank(timeline.duration());
    }
}
