// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slides.h"
#include "times.h"

#include "smilparser/model/attributes.h"
#include "smilparser/model/elements.h"
#include "smilparser/model/timeline.h"

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <utility>
#include <vector>

// Made once, not at each look-up.
static const QString absent;
static const QString altName = QStringLiteral("alt");
static const QString nameName = QStringLiteral("name");
static const QString paramName = QStringLiteral("param");
static const QString valueName = QStringLiteral("value");

namespace
{
/** When an element plays. What is around it cuts it off only when all are known, for what is in it tells its end. */
struct Span {
    double begin;
    double end;
    int around; ///< the span of the node around it, which precedes it; -1 for that of "body"
    int cue; ///< its place among the cues; -1 for a node
    bool ends; ///< whether it states an end
    bool open; ///< whether it lasts until the node around it ends
};

struct Walk {
    double slideDuration;
    const std::function<double(const SmilRef &)> &length;
    std::vector<Span> spans;
    QList<SmilCue> cues;
};

/** The base of what comes next in the node, and the end of what is in it so far. */
struct Inside {
    double base;
    double end;
    int last = -1; ///< the span of the last thing in it
    bool hasOpen = false;
};
}

static SmilCue readCue(const QDomElement &element, int type)
{
    SmilCue cue;
    cue.ref.type = type;
    for (const Attribute<SmilRef> &attribute : refAttributes) {
        cue.ref.*attribute.text = element.attribute(attribute.name, absent);
    }
    cue.alt = element.attribute(altName, absent);
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement param = child.toElement();
        const QString name = param.tagName() == paramName ? param.attribute(nameName, absent) : absent;
        if (!name.isEmpty() && !cue.params.contains(name)) {
            cue.params.insert(name, param.attribute(valueName, absent));
        }
    }
    return cue;
}

static Span spanOf(const QDomElement &element, double base, int around)
{
    const Times times = readTimes(element);
    const double begin = base + times.begin;
    const double end = std::max(begin, std::min(begin + times.dur, base + times.end));
    return {begin, end, around, -1, times.stateEnd(), false};
}

// What follows is not part of addNode(), or its locals would take up stack at every level of nesting: there are up to
// 512, and some threads have 128 KiB.

Q_NEVER_INLINE static void addMedium(Walk &walk, const QDomElement &element, int type, double base, int around)
{
    SmilCue cue = readCue(element, type);
    Span span = spanOf(element, base, around);
    span.cue = int(walk.cues.size());
    if (!span.ends) {
        const double length = walk.length ? walk.length(cue.ref) : 0;
        span.open = !isDuration(length);
        span.end = span.begin + (span.open ? walk.slideDuration : length);
    }
    walk.cues.append(std::move(cue));
    walk.spans.push_back(span);
}

Q_NEVER_INLINE static const TimelineElement *findElement(const QDomElement &element)
{
    return findElement(element.tagName());
}

Q_NEVER_INLINE static Inside beginNode(Walk &walk, const QDomElement &element, double base, int around)
{
    walk.spans.push_back(spanOf(element, base, around));
    return {walk.spans.back().begin, walk.spans.back().begin};
}

Q_NEVER_INLINE static void goOn(Walk &walk, Inside &inside, int nodeType, int added)
{
    const Span &span = walk.spans[added];
    if (nodeType == SmilNode::Seq) {
        if (inside.last >= 0) {
            walk.spans[inside.last].open = false; // something follows, and it has its time
        }
        inside.base = inside.end = span.end;
    } else if (!span.open || walk.cues.at(span.cue).ref.type != SmilRef::Audio) {
        inside.end = std::max(inside.end, span.end);
    }
    inside.hasOpen = inside.hasOpen || span.open;
    inside.last = added;
}

Q_NEVER_INLINE static void endNode(Walk &walk, int node, int type, const Inside &inside)
{
    Span &span = walk.spans[node];
    if (!span.ends) {
        const bool needsTime = type == SmilNode::Par && inside.hasOpen && inside.end <= span.begin;
        span.end = needsTime ? span.begin + walk.slideDuration : inside.end;
    }
}

static void addNode(Walk &walk, const QDomElement &element, int type, double base, int around, int depth)
{
    const int node = int(walk.spans.size());
    Inside inside = beginNode(walk, element, base, around);
    for (QDomNode sibling = element.firstChild(); !sibling.isNull(); sibling = sibling.nextSibling()) {
        const QDomElement child = sibling.toElement();
        const TimelineElement *const known = findElement(child);
        if (!known || (known->record == TimelineElement::Node && depth == SmilParser::MaxDepth)) {
            continue;
        }
        const int added = int(walk.spans.size());
        if (known->record == TimelineElement::Ref) {
            addMedium(walk, child, known->type, inside.base, node);
        } else {
            addNode(walk, child, known->type, inside.base, node, depth + 1);
        }
        goOn(walk, inside, type, added);
    }
    endNode(walk, node, type, inside);
}

/** Lets nothing outlast the node around it, and puts the times into the cues. */
static void cutOff(Walk &walk)
{
    for (Span &span : walk.spans) {
        const double limit = span.around < 0 ? qInf() : walk.spans[span.around].end;
        span.begin = std::min(span.begin, limit);
        span.end = span.open ? limit : std::min(span.end, limit);
        if (span.cue >= 0) {
            walk.cues[span.cue].begin = span.begin;
            walk.cues[span.cue].end = span.end;
        }
    }
}

/** Needs the cues as the document has them, in which those of a child of "body" stand together. */
static QList<double> findSlides(const Walk &walk)
{
    QList<double> slides;
    auto begin = walk.cues.cbegin();
    auto end = begin;
    const auto addChild = [&] {
        for (const double slide : slidesOf(begin, end)) {
            slides.append(slide);
        }
        begin = end;
    };
    for (const Span &span : walk.spans) {
        if (span.around == 0) {
            addChild();
        }
        end += span.cue >= 0 ? 1 : 0;
    }
    addChild();
    return slides;
}

SmilTimeline::SmilTimeline(const QDomElement &smil, double slideDuration,
                           const std::function<double(const SmilRef &)> &length)
    : duration(0.0)
{
    const QDomElement body = smil.firstChildElement(bodyElement);
    if (smil.tagName() != smilElement || body.isNull()) {
        return;
    }
    Walk walk{isDuration(slideDuration) ? slideDuration : 5.0, length, {}, {}};
    addNode(walk, body, SmilNode::Seq, 0, -1, 0);
    cutOff(walk);
    duration = walk.spans.front().end;
    slides = findSlides(walk);
    const auto isEarlier = [](const SmilCue &a, const SmilCue &b) { return a.begin < b.begin; };
    // Most documents have them in order, and sorting would take a sixth of the time.
    if (!std::is_sorted(walk.cues.begin(), walk.cues.end(), isEarlier)) {
        std::stable_sort(walk.cues.begin(), walk.cues.end(), isEarlier);
    }
    cues = std::move(walk.cues);
}

QList<SmilCue> SmilTimeline::at(double seconds) const
{
    QList<SmilCue> playing;
    std::copy_if(cues.begin(), cues.end(), std::back_inserter(playing),
                 [=](const SmilCue &cue) { return cue.begin <= seconds && seconds < cue.end; });
    return playing;
}

QList<SmilCue> SmilTimeline::during(double from, double to) const
{
    QList<SmilCue> playing;
    std::copy_if(cues.begin(), cues.end(), std::back_inserter(playing),
                 [=](const SmilCue &cue) { return cue.begin < to && cue.end > from && cue.begin < cue.end; });
    return playing;
}

double SmilTimeline::next(double seconds) const
{
    double next = qInf();
    for (const SmilCue &cue : cues) {
        if (cue.begin < cue.end) {
            next = cue.begin > seconds ? std::min(next, cue.begin) : next;
            next = cue.end > seconds ? std::min(next, cue.end) : next;
        }
    }
    return next;
}
