// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "require.h"

#include "tests/messages.h"
#include "tests/modeldump.h"

#include <smilparser/smilslideshow.h>

#include <QtCore/QRegularExpression>

bool MMSLogger::qdebugEnabled = false;

/** The dump without empty texts, which are not written, and without a head that held no more. */
static QString dump(const SmilDocument &model)
{
    static const QRegularExpression empty(QStringLiteral("<head( [a-z]+='')*/>| [a-z]+=''"));
    return ModelDump::of(model).remove(empty);
}

static QString described(const SmilRef &ref)
{
    const auto shown = [](const QString &text) {
        return text.isNull() ? QStringLiteral("-") : QLatin1Char('=') + text;
    };
    return QString::number(ref.type) + shown(ref.src) + QLatin1Char('\n') + shown(ref.region);
}

static void collectMedia(const SmilNode &node, QStringList &media)
{
    for (const SmilRef &ref : node.refs) {
        media << described(ref);
    }
    for (const SmilNode &child : node.children) {
        collectMedia(child, media);
    }
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
        require(next > slide, "slides are in order, each once");
        require(!timeline.cuesAt(next).isEmpty(), "something plays where a page begins");
        slide = next;
    }
    const double first = timeline.slideBegins().isEmpty() ? qInf() : timeline.slideBegins().first();
    require(timeline.cuesBetween(first, qInf()).size() == playing, "all that plays is on a page");
}

static void requirePlaces(const SmilScreen &screen, const QList<SmilCue> &cues)
{
    require(qIsFinite(screen.size().width()) && qIsFinite(screen.size().height()) && !screen.size().isEmpty(),
            "a screen");
    const QList<QRectF> places = screen.rects(cues);
    require(places.size() == cues.size(), "a place for each");
    for (const QRectF &area : screen.regionRects() + places) {
        require(qIsFinite(area.x()) && qIsFinite(area.y()), "an area is somewhere");
        require(qIsFinite(area.width()) && qIsFinite(area.height()), "an area has a size");
        require(area.width() >= 0 && area.height() >= 0, "no area is less than nothing");
    }
}

static void requirePlayable(const SmilDocument &model, const QDomElement &smil, bool isComplete)
{
    const SmilTimeline timeline(smil);
    requireTimes(timeline);
    const SmilScreen screen(model.header.layout);
    require(screen.regionRects().size() == model.header.layout.regions.size(), "an area for each region");
    requirePlaces(screen, timeline.cues());
    QStringList inModel;
    QStringList playing;
    collectMedia(model.body.root, inModel);
    for (const SmilCue &cue : timeline.cues()) {
        playing << described(cue.ref);
    }
    inModel.sort();
    playing.sort();
    require(!isComplete || playing == inModel, "the media are those of the model");
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
    int line = -7;
    int column = -8;
    SmilDocument model = parser.parse(&error, &line, &column);
    const QString warning = messages.take();
    if (!error.isNull()) {
        require(line != -7 && column != -8, "the reader wrote the place");
        // Qt 5 warns about some encodings too.
        const QString place = QStringLiteral("' at (%1,%2)!\n").arg(line).arg(column);
        require(warning.count(QStringLiteral("warning: Fail to ")) == 1 && warning.endsWith(place),
                "one warning says it");
        require(model == SmilDocument(), "the model is the default one");
        requireSlides(bytes, {SmilCue()});
        return 0;
    }
    require(line == -7 && column == -8 && !warning.contains(QLatin1String(" parse ")), "nothing is reported");
    requirePlayable(model, parser.dom().documentElement(), !warning.contains(QLatin1String("warning: Fail to ")));
    requireSlides(bytes, SmilTimeline(parser.dom().documentElement()).cues());
    messages.take();

    const QDomDocument dom = parser.getContent();
    if (!isXml(dom.toString())) {
        return 0;
    }
    SmilParser second(dom.toByteArray());
    const SmilDocument &again = second.parse(&error, &line, &column);
    require(messages.take().isEmpty() && error.isNull(), "what was written can be read");
    // What is not kept: media and a duration directly inside the body, and which of the two sizes it was.
    model.body.root.refs.clear();
    model.body.root.dur = SmilUnit();
    SmilLayout &layout = model.header.layout;
    layout.rootLayoutWidth = std::exchange(layout.topLayoutWidth, SmilUnit());
    layout.rootLayoutHeight = std::exchange(layout.topLayoutHeight, SmilUnit());
    require(dump(again) == dump(model), "it is the same when read again");
    return 0;
}
