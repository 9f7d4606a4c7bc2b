// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "crowding.h"

#include <smilparser/smilplayback.h>

#include <algorithm>

static const QString lineName = QStringLiteral("alt");

static void markLines(const QDomElement &element, QDomElement copy)
{
    copy.setAttribute(lineName, element.lineNumber());
    QDomElement childCopy = copy.firstChildElement();
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        markLines(child, childCopy);
        childCopy = childCopy.nextSiblingElement();
    }
}

/**
 * A copy in which each element has its line in place of words, so that a cue has it. To walk the media beside the
 * timeline instead would be to decide a second time which of them it knows.
 */
static QDomElement withLines(const QDomElement &element)
{
    const QDomElement copy = element.cloneNode().toElement();
    markLines(element, copy);
    return copy;
}

/** What many phones show one of on a slide. */
enum Room { Sight, Words, Sound };

static Room roomOf(const SmilRef &ref)
{
    return ref.type == SmilRef::Text ? Words : ref.type == SmilRef::Audio ? Sound : Sight;
}

static QString subjectOf(const SmilRef &ref, bool hasRegion)
{
    static const char *const two[] = {"two pictures or films", "two texts", "two sounds"};
    return QLatin1String(two[roomOf(ref)])
        + (hasRegion ? QStringLiteral(" at the same time in region %1:").arg(excerpt(ref.region))
                     : QStringLiteral(" at the same time without a region:"));
}

void findCrowding(const QDomElement &smil, const SmilLayout &layout, Findings &found)
{
    const SmilScreen screen(layout);
    const SmilTimeline timeline(withLines(smil));
    struct Addition {
        int line;
        QString subject;
        QString src;
    };
    QList<Addition> additions;
    // The cues are in the order in which they begin: one comes in addition if any of those before it still plays.
    QHash<QPair<int, int>, double> ends;
    for (const SmilCue &cue : timeline.cues) {
        if (cue.begin < cue.end) {
            const int region = screen.indexOf(cue.ref.region);
            double &end = ends[{roomOf(cue.ref), region}];
            if (cue.begin < end) {
                additions.append({cue.alt.toInt(), subjectOf(cue.ref, region >= 0), excerpt(cue.ref.src)});
            }
            end = std::max(end, cue.end);
        }
    }
    std::stable_sort(additions.begin(), additions.end(),
                     [](const Addition &a, const Addition &b) { return a.line < b.line; });
    for (const Addition &addition : std::as_const(additions)) {
        found.add(Finding::CrowdedSlide, addition.line, addition.subject, addition.src);
    }
}
