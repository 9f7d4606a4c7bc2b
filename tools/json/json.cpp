// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "json/json.h"
#include "base/bounds.h"
#include "base/escaping.h"
#include "input/content.h"

#include <smilparser/smilplayback.h>

#include <QtCore/QIODevice>
#include <QtCore/QLocale>

#include <cmath>

namespace
{
/** Writes JSON piece by piece: all of a message at once takes several hundred times its size. */
class Json
{
public:
    explicit Json(QIODevice &device)
        : out(device)
    {
    }

    /** An object of what @p fill adds: the value of @p key or, without one, an element of a list, as all that follow.
     */
    template<typename Fill>
    void object(const QByteArray &key, Fill fill)
    {
        next(key, "{");
        isFirst = true;
        fill();
        out.putChar('}');
        isFirst = false;
    }

    /** A list of what @p each adds for the elements. */
    template<typename List, typename Each>
    void list(const QByteArray &key, const List &elements, Each each)
    {
        next(key, "[");
        isFirst = true;
        for (const auto &element : elements) {
            each(element);
        }
        out.putChar(']');
        isFirst = false;
    }

    /** Nothing if the text is null. */
    void add(const QByteArray &key, const QString &text)
    {
        if (!text.isNull()) {
            next(key, '"' + jsonEscaped(text) + '"');
        }
    }

    void add(const QByteArray &key, double number)
    {
        const bool isWhole = number == std::trunc(number) && std::fabs(number) < 1e15;
        next(key,
             qIsInf(number) ? QByteArray(number > 0 ? "\"inf\"" : "\"-inf\"")
                 : isWhole  ? QByteArray::number(qint64(number))
                            : QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
    }

    void add(const QByteArray &key, const SmilUnit &measure);

    void addFlag(const QByteArray &key, bool flag) { next(key, flag ? "true" : "false"); }

private:
    void next(const QByteArray &key, const QByteArray &value)
    {
        out.write(isFirst ? "" : ",");
        out.write(key.isEmpty() ? key : '"' + key + "\":");
        out.write(value);
        isFirst = false;
    }

    QIODevice &out;
    bool isFirst = true;
};
}

/** Nothing if the measure is not valid. */
void Json::add(const QByteArray &key, const SmilUnit &measure)
{
    static const char *const units[] = {"pt", "in", "cm", "px", "%", "s", ""};
    if (measure.valid) {
        object(key, [&] {
            add("value", measure.value);
            add("unit", QString(QLatin1String(units[measure.unit])));
            add("text", measure.toString());
        });
    }
}

static QString header(const QString &text)
{
    return shortened(text, bounds::header);
}

static void addMessage(const Message &message, Json &json)
{
    const MmsMessage &mms = message.mms;
    json.add("from", header(mms.from));
    json.list("to", mms.to, [&](const QString &receiver) { json.add({}, header(receiver)); });
    json.add("subject", header(mms.subject));
    json.add("date", mms.date.isValid() ? mms.date.toString(Qt::ISODate) : QString());
    int i = 0;
    json.list("parts", mms.parts, [&](const SmilPart &part) {
        json.object({}, [&] {
            json.add("name", header(part.name));
            json.add("contentId", header(part.contentId));
            json.add("location", header(part.location));
            json.add("type", header(part.type));
            json.addFlag("smil", part.isSmil());
            json.add("size", double(mms.data.at(i++).size()));
        });
    });
}

static void addLayout(const SmilLayout &layout, Json &json)
{
    json.add("rootLayoutWidth", layout.rootLayoutWidth);
    json.add("rootLayoutHeight", layout.rootLayoutHeight);
    json.add("topLayoutWidth", layout.topLayoutWidth);
    json.add("topLayoutHeight", layout.topLayoutHeight);
    json.list("regions", layout.regions, [&](const SmilRegion &region) {
        json.object({}, [&] {
            json.add("id", region.id);
            json.add("width", region.width);
            json.add("height", region.height);
            json.add("bottom", region.bottom);
            json.add("top", region.top);
            json.add("left", region.left);
            json.add("right", region.right);
            json.add("fit", region.fit);
        });
    });
}

static void addHeader(const SmilHeader &header, Json &json)
{
    json.add("id", header.id);
    json.add("className", header.className);
    json.add("title", header.title);
    json.list("metas", header.metas, [&](const SmilMeta &meta) {
        json.object({}, [&] {
            json.add("id", meta.id);
            json.add("name", meta.name);
            json.add("content", meta.content);
        });
    });
    json.object("layout", [&] { addLayout(header.layout, json); });
}

static void addRef(const QByteArray &key, const SmilRef &ref, Json &json)
{
    json.object(key, [&] {
        json.add("type", elementName(ref.type));
        json.add("src", ref.src);
        json.add("region", ref.region);
    });
}

static void addNodes(const SmilNode &node, int depth, Json &json)
{
    json.object({}, [&] {
        json.add("depth", depth);
        json.add("type", node.type == SmilNode::Seq ? QStringLiteral("seq") : QStringLiteral("par"));
        json.add("dur", node.dur);
        json.list("refs", node.refs, [&](const SmilRef &ref) { addRef({}, ref, json); });
    });
    for (const SmilNode &child : node.children) {
        addNodes(child, depth + 1, json);
    }
}

/** Where a cue is shown when nothing shares the area with it. */
static void addArea(const SmilCue &cue, const SmilScreen &screen, Json &json)
{
    const QRectF area =
        screen.regionRects().value(screen.regionIndex(cue.ref.region), QRectF(QPointF(), screen.size()));
    json.object("area", [&] {
        json.add("x", area.x());
        json.add("y", area.y());
        json.add("width", area.width());
        json.add("height", area.height());
    });
}

static void addCue(const SmilCue &cue, const SmilScreen &screen, int part, Json &json)
{
    json.add("begin", cue.begin);
    json.add("end", cue.end);
    addRef("ref", cue.ref, json);
    json.add("alt", cue.alt);
    json.object("params", [&] {
        for (auto param = cue.params.cbegin(); param != cue.params.cend(); ++param) {
            json.add(jsonEscaped(param.key()), param.value());
        }
    });
    if (cue.ref.type != SmilRef::Audio) {
        addArea(cue, screen, json);
    }
    if (part >= 0) {
        json.add("part", part);
    }
}

static void addTimeline(const Message &message, Json &json)
{
    const SmilScreen screen(message.document.header.layout);
    const SmilTimeline timeline(message.dom.documentElement());
    json.add("duration", timeline.duration());
    json.list("cues", timeline.cues(), [&](const SmilCue &cue) {
        json.object({}, [&] { addCue(cue, screen, message.parts.find(cue.ref.src), json); });
    });
}

static void addSlides(const SmilSlideshow &show, Json &json)
{
    json.add("duration", show.duration());
    json.list("slides", firstSlides(show), [&](const SmilSlide &slide) {
        json.object({}, [&] {
            json.add("begin", slide.begin);
            json.add("end", slide.end);
            json.list("parts", slide.parts, [&](int part) { json.add({}, part); });
        });
    });
}

static void addProblem(const Problem &problem, Json &json)
{
    json.add("error", problem.text);
    if (problem.line != 0) {
        json.add("line", problem.line);
        json.add("column", problem.column);
    }
}

void showJson(const Message &message, QIODevice &out)
{
    Json json(out);
    json.object({}, [&] {
        json.add("file", message.file);
        if (!message.problem.isNone()) {
            addProblem(message.problem, json);
        }
        if (message.parts.areKnown()) {
            addMessage(message, json);
        }
        if (message.outcome == SmilParser::Complete) {
            json.object("header", [&] { addHeader(message.document.header, json); });
            json.list("nodes", QList<SmilNode>{message.document.body.root},
                      [&](const SmilNode &root) { addNodes(root, 0, json); });
            json.object("timeline", [&] { addTimeline(message, json); });
        }
        if (message.isReadable()) {
            addSlides(message.slideshow(), json);
        }
    });
    out.putChar('\n');
}
