// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/crowding.h"
#include "check/elementtable.h"

#include <smilparser/smilplayback.h>

#include <algorithm>
#include <map>
#include <utility>

/**
 * Puts the line of each medium in place of its words, so that a cue has it. To walk the media beside the timeline
 * instead would be to decide a second time which of them it knows. One without any attribute, which names nothing that
 * could play, has none: to Qt 6, the first attribute of an element is larger than the element.
 */
static void markLines(QDomElement element)
{
    if (element.hasAttributes()
        && elementNamed(element.tagName().toLower()).attributes.contains(QStringLiteral("src"))) {
        element.setAttribute(QStringLiteral("alt"), element.lineNumber());
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        markLines(child);
    }
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
    markLines(smil);
    const SmilScreen screen(layout);
    const QList<SmilCue> cues = SmilTimeline(smil).cues();
    QList<const SmilCue *> additions;
    // The cues are in the order in which they begin: one comes in addition if any of those before it still plays.
    std::map<std::pair<int, int>, double> ends;
    for (const SmilCue &cue : cues) {
        if (cue.begin < cue.end) {
            double &end = ends[{roomOf(cue.ref), screen.regionIndex(cue.ref.region)}];
            if (cue.begin < end) {
                additions.append(&cue);
            }
            end = std::max(end, cue.end);
        }
    }
    const int bodyLine = smil.firstChildElement(QStringLiteral("body")).lineNumber();
    const auto lineOf = [=](const SmilCue *cue) { return cue->alt.isEmpty() ? bodyLine : cue->alt.toInt(); };
    std::stable_sort(additions.begin(), additions.end(),
                     [&](const SmilCue *a, const SmilCue *b) { return lineOf(a) < lineOf(b); });
    for (const SmilCue *const cue : std::as_const(additions)) {
        found.add(Finding::CrowdedSlide, lineOf(cue), subjectOf(cue->ref, screen.regionIndex(cue->ref.region) >= 0),
                  excerpt(cue->ref.src));
    }
}
