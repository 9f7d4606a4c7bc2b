// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "timelinebuilder.h"
#include "regionstyle.h"
#include "slides.h"
#include "times.h"

#include "smilparser/model/duration.h"
#include "smilparser/model/vocabulary.h"

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <utility>
#include <vector>

// Made once, not at each look-up.
static const QString altName = QStringLiteral("alt");
static const QString backgroundName = QStringLiteral("background-color");
static const QString nameName = QStringLiteral("name");
static const QString paramName = QStringLiteral("param");
static const QString valueName = QStringLiteral("value");

namespace
{
/** When an element plays. Its parent cuts it off only when all are known, because the end of that follows from them. */
struct Span {
    double begin;
    double end;
    int parent; ///< the span of the node around it, which precedes it; -1 for that of "body"
    int cue; ///< its place among the cues; -1 for a node
    bool ends; ///< whether it states an end
    bool open; ///< whether it lasts until its parent ends
};

/** The base of what comes next in a node, and the end of what is in it so far. */
struct NodeState {
    double base;
    double end;
    int last = -1; ///< the span of the last thing in it
    bool hasOpen = false;
};

/** The walk through the elements. */
struct TimelineBuilder {
    double slideDuration;
    const std::function<double(const SmilRef &)> &length;
    const QMap<QString, RegionStyle> styles;
    std::vector<Span> spans;
    QList<SmilCue> cues;

    void addMedium(const QDomElement &element, int type, double base, int parent);
    NodeState beginNode(const QDomElement &element, double base, int parent);
    void childAdded(NodeState &state, int nodeType, int added);
    void endNode(int node, int type, const NodeState &state);
    void addNode(const QDomElement &element, int type, double base, int parent, int depth);
    void cutOff();
    QList<double> findSlides() const;
};
}

static void readParams(const QDomElement &element, QMap<QString, QString> &params)
{
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement param = child.toElement();
        const QString name = param.tagName() == paramName ? param.attribute(nameName, absent) : absent;
        if (!name.isEmpty() && !params.contains(name)) {
            params.insert(name, param.attribute(valueName, absent));
        }
    }
}

static SmilCue readCue(const QDomElement &element, int type, const QMap<QString, RegionStyle> &styles)
{
    SmilCue cue;
    cue.ref.type = type;
    readAttributes(element, refAttributes, cue.ref);
    cue.alt = element.attribute(altName, absent);
    cue.line = element.lineNumber();
    readParams(element, cue.params);
    const RegionStyle style = styles.value(cue.ref.region);
    const QString background = cue.params.value(backgroundName);
    cue.background = background.isEmpty() ? style.background : background;
    cue.fit = style.fit;
    return cue;
}

static Span spanOf(const QDomElement &element, double base, int parent)
{
    const Times times = readTimes(element);
    const double begin = base + times.begin;
    const double end = std::max(begin, std::min(begin + times.dur, base + times.end));
    return {begin, end, parent, -1, times.stateEnd(), false};
}

// The next functions are not part of addNode(), where their locals would take up stack at every level of nesting: there
// are up to 512, and some threads have 128 KiB.

Q_NEVER_INLINE void TimelineBuilder::addMedium(const QDomElement &element, int type, double base, int parent)
{
    SmilCue cue = readCue(element, type, styles);
    Span span = spanOf(element, base, parent);
    span.cue = int(cues.size());
    if (!span.ends) {
        const double own = length ? length(cue.ref) : 0;
        span.open = !isDuration(own);
        span.end = span.begin + (span.open ? slideDuration : own);
    }
    cues.append(std::move(cue));
    spans.push_back(span);
}

Q_NEVER_INLINE static const TimelineElement *findElement(const QDomElement &element)
{
    return findElement(element.tagName());
}

Q_NEVER_INLINE NodeState TimelineBuilder::beginNode(const QDomElement &element, double base, int parent)
{
    spans.push_back(spanOf(element, base, parent));
    return {spans.back().begin, spans.back().begin};
}

Q_NEVER_INLINE void TimelineBuilder::childAdded(NodeState &state, int nodeType, int added)
{
    const Span &span = spans[added];
    if (nodeType == SmilNode::Seq) {
        if (state.last >= 0) {
            spans[state.last].open = false; // something follows, and it has its time
        }
        state.base = state.end = span.end;
    } else if (!span.open || cues.at(span.cue).ref.type != SmilRef::Audio) {
        state.end = std::max(state.end, span.end);
    }
    state.hasOpen = state.hasOpen || span.open;
    state.last = added;
}

Q_NEVER_INLINE void TimelineBuilder::endNode(int node, int type, const NodeState &state)
{
    Span &span = spans[node];
    if (!span.ends) {
        const bool needsTime = type == SmilNode::Par && state.hasOpen && state.end <= span.begin;
        span.end = needsTime ? span.begin + slideDuration : state.end;
    }
}

void TimelineBuilder::addNode(const QDomElement &element, int type, double base, int parent, int depth)
{
    const int node = int(spans.size());
    NodeState state = beginNode(element, base, parent);
    for (QDomNode sibling = element.firstChild(); !sibling.isNull(); sibling = sibling.nextSibling()) {
        const QDomElement child = sibling.toElement();
        const TimelineElement *const known = findElement(child);
        if (!known || (known->record == TimelineElement::Node && depth == SmilParser::MaxDepth)) {
            continue;
        }
        const int added = int(spans.size());
        if (known->record == TimelineElement::Ref) {
            addMedium(child, known->type, state.base, node);
        } else {
            addNode(child, known->type, state.base, node, depth + 1);
        }
        childAdded(state, type, added);
    }
    endNode(node, type, state);
}

/** Ends everything with its parent at the latest, and puts the times into the cues. */
void TimelineBuilder::cutOff()
{
    for (Span &span : spans) {
        const double limit = span.parent < 0 ? qInf() : spans[span.parent].end;
        span.begin = std::min(span.begin, limit);
        span.end = span.open ? limit : std::min(span.end, limit);
        if (span.cue >= 0) {
            cues[span.cue].begin = span.begin;
            cues[span.cue].end = span.end;
        }
    }
}

/** Needs the cues as the document has them, in which those of a child of "body" stand together. */
QList<double> TimelineBuilder::findSlides() const
{
    QList<double> slides;
    auto begin = cues.cbegin();
    auto end = begin;
    const auto addChild = [&] {
        for (const double slide : slidesOf(begin, end)) {
            slides.append(slide);
        }
        begin = end;
    };
    for (const Span &span : spans) {
        if (span.parent == 0) {
            addChild();
        }
        end += span.cue >= 0 ? 1 : 0;
    }
    addChild();
    return slides;
}

void buildTimeline(const QDomElement &smil, double slideDuration, const std::function<double(const SmilRef &)> &length,
                   SmilTimelineData &timeline)
{
    const QDomElement body = smil.firstChildElement(bodyElement);
    if (body.isNull()) {
        return;
    }
    TimelineBuilder builder{isDuration(slideDuration) ? slideDuration : 5.0, length, readRegionStyles(smil), {}, {}};
    builder.addNode(body, SmilNode::Seq, 0, -1, 0);
    builder.cutOff();
    timeline.duration = builder.spans.front().end;
    timeline.slideBegins = builder.findSlides();
    const auto isEarlier = [](const SmilCue &a, const SmilCue &b) { return a.begin < b.begin; };
    // Most documents have them in order, and sorting would take a sixth of the time.
    if (!std::is_sorted(builder.cues.begin(), builder.cues.end(), isEarlier)) {
        std::stable_sort(builder.cues.begin(), builder.cues.end(), isEarlier);
    }
    timeline.cues = std::move(builder.cues);
}
