// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "require.h"

#include "tests/messages.h"

#include <smilparser/smilslideshow.h>

#include <QtCore/QRegularExpression>

#include <numeric>

bool MMSLogger::qdebugEnabled = false;

static int mediaIn(const SmilNode &node)
{
    return std::accumulate(node.children.begin(), node.children.end(), int(node.refs.size()),
                           [](int sum, const SmilNode &child) { return sum + mediaIn(child); });
}

/** The comparisons are so that none holds for what is not a number. */
static void requireTimes(const SmilTimeline &timeline)
{
    double begin = 0;
    int playing = 0;
    for (const SmilCue &cue : timeline.cues()) {
        require(cue.begin >= begin && cue.end >= cue.begin && timeline.duration() >= cue.end, "the times are in order");
        begin = cue.begin;
        playing += cue.begin < cue.end ? 1 : 0;
    }
    double slide = -1;
    for (const double next : timeline.slideBegins()) {
        require(next > slide && !timeline.cuesAt(next).isEmpty(), "slides are in order, and something plays on each");
        slide = next;
    }
    const double first = timeline.slideBegins().value(0, qInf());
    require(timeline.cuesBetween(first, qInf()).size() == playing, "all that plays is on a page");
}

static void requirePlaces(const SmilLayout &layout, const QList<SmilCue> &cues)
{
    const SmilScreen screen(layout);
    const QList<QRectF> areas = screen.regionRects();
    const QList<QRectF> places = screen.rects(cues);
    require(areas.size() == layout.regions.size() && places.size() == cues.size(), "an area for each");
    require(!screen.size().isEmpty(), "a screen");
    for (const QRectF &area : areas + places + QList<QRectF>{QRectF(QPointF(), screen.size())}) {
        require(qIsFinite(area.x()) && qIsFinite(area.y()), "an area is somewhere");
        require(qIsFinite(area.width()) && qIsFinite(area.height()), "an area has a size");
        require(area.width() >= 0 && area.height() >= 0, "no area is less than nothing");
    }
}

/** A slideshow of the document, with parts of which the document names some. */
static void requireSlides(const QByteArray &smil, const QList<SmilCue> &cues)
{
    QList<SmilPart> parts;
    for (const SmilCue &cue : cues) {
        parts.append(SmilPart());
        parts.last().location = cue.ref.src;
        parts.last().type = cue.alt;
    }
    parts.append(SmilPart());
    const SmilSlideshow show(smil, parts);
    QSet<int> shown;
    double begin = 0;
    for (int i = 0; i < show.count(); ++i) {
        const SmilSlide slide = show.slide(i);
        require(slide.begin >= begin && slide.end >= slide.begin, "slides are in order");
        require(!slide.cues.isEmpty() && slide.parts.size() == slide.cues.size(),
                "a slide has cues, and a part for each");
        begin = slide.end;
        for (const int part : slide.parts) {
            require(part >= -1 && part < parts.size(), "a part is one of the message");
            shown.insert(part);
        }
    }
    require(show.duration() >= begin, "the duration is the end of the last slide");
    for (int i = 0; i < int(parts.size()); ++i) {
        require(shown.contains(i) || parts.at(i).isSmil(), "every part is on a slide");
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Messages messages(0);
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    SmilParser parser(bytes);
    QString error;
    const SmilDocument model = parser.parse(&error);
    const int warnings = messages.take().count(QStringLiteral("warning: Fail to "));
    require(error.isNull() || (warnings == 1 && model == SmilDocument()), "a warning, and nothing else");
    const SmilTimeline timeline(parser.dom().documentElement());
    requireTimes(timeline);
    requirePlaces(model.header.layout, timeline.cues());
    require(warnings || timeline.cues().size() == mediaIn(model.body.root), "the media are those of the model");
    requireSlides(bytes, timeline.cues());

    const QByteArray text = SmilParser(model).toXml();
    SmilParser second(text);
    QString errorAgain;
    messages.take();
    const SmilDocument again = second.parse(SmilParser::KeepRootSize, nullptr, &errorAgain);
    require(errorAgain.isNull() && messages.take().isEmpty(), "what was written can be read");
    // Where XML forbids every character of a text, the attribute is empty; an empty text is not written again.
    static const QRegularExpression emptyAttribute(QStringLiteral(" \\w+=\"\""));
    require(SmilParser(again).toXml() == QString::fromUtf8(text).remove(emptyAttribute).toUtf8(),
            "it is the same when read again");
    return 0;
}
