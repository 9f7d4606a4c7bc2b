// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "commands/commands.h"
#include "input/content.h"

#include <QtCore/QIODevice>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

static QJsonValue stated(bool isStated, const QJsonValue &value)
{
    return isStated ? value : QJsonValue(QJsonValue::Undefined);
}

static QJsonValue text(const QString &text)
{
    return stated(!text.isNull(), text);
}

static QJsonValue header(const QString &header)
{
    return text(shortened(header, bounds::header));
}

static QJsonValue number(double number)
{
    return qIsInf(number) ? QJsonValue(QLatin1String(number > 0 ? "inf" : "-inf")) : QJsonValue(number);
}

/** An object without what is not stated. */
static QJsonObject object(std::initializer_list<std::pair<const char *, QJsonValue>> values)
{
    QJsonObject result;
    for (const auto &[key, value] : values) {
        result.insert(QLatin1String(key), value);
    }
    return result;
}

template<typename List, typename Make>
static QJsonArray array(const List &elements, Make make)
{
    QJsonArray result;
    for (const auto &element : elements) {
        result.append(make(element));
    }
    return result;
}

static QJsonObject regionObject(const SmilRegion &region)
{
    return object({{"id", text(region.id)},
                   {"fit", text(region.fit)},
                   {"width", text(region.width.toString())},
                   {"height", text(region.height.toString())},
                   {"left", text(region.left.toString())},
                   {"top", text(region.top.toString())},
                   {"right", text(region.right.toString())},
                   {"bottom", text(region.bottom.toString())}});
}

static QJsonObject headerObject(const SmilHeader &header)
{
    const SmilLayout &layout = header.layout;
    const auto metaObject = [](const SmilMeta &meta) {
        return object({{"id", text(meta.id)}, {"name", text(meta.name)}, {"content", text(meta.content)}});
    };
    const QJsonObject layoutObject = object({{"rootLayoutWidth", text(layout.rootLayoutWidth.toString())},
                                             {"rootLayoutHeight", text(layout.rootLayoutHeight.toString())},
                                             {"topLayoutWidth", text(layout.topLayoutWidth.toString())},
                                             {"topLayoutHeight", text(layout.topLayoutHeight.toString())},
                                             {"regions", array(layout.regions, regionObject)}});
    return object({{"id", text(header.id)},
                   {"className", text(header.className)},
                   {"title", text(header.title)},
                   {"metas", array(header.metas, metaObject)},
                   {"layout", layoutObject}});
}

static QJsonObject refObject(const SmilRef &ref)
{
    return object({{"type", elementName(ref.type)}, {"src", text(ref.src)}, {"region", text(ref.region)}});
}

static QJsonObject cueObject(const SmilCue &cue, const SmilScreen &screen, int part)
{
    QJsonObject params;
    for (auto param = cue.params.cbegin(); param != cue.params.cend(); ++param) {
        params.insert(param.key(), text(param.value()));
    }
    const bool isSound = cue.ref.type == SmilRef::Audio;
    const QRectF area = screen.rects({cue}).constFirst(); // when nothing shares it
    return object(
        {{"begin", number(cue.begin)},
         {"end", number(cue.end)},
         {"ref", refObject(cue.ref)},
         {"alt", text(cue.alt)},
         {"params", params},
         {"area",
          stated(!isSound,
                 object({{"x", area.x()}, {"y", area.y()}, {"width", area.width()}, {"height", area.height()}}))},
         {"part", stated(part >= 0, part)}});
}

static void addMessage(const Message &message, QJsonObject &json)
{
    const MmsMessage &mms = message.mms;
    int i = 0;
    const auto partObject = [&](const SmilPart &part) {
        return object({{"name", header(part.name)},
                       {"contentId", header(part.contentId)},
                       {"location", header(part.location)},
                       {"type", header(part.type)},
                       {"smil", part.isSmil()},
                       {"size", double(mms.data.at(i++).size())}});
    };
    json.insert(QLatin1String("from"), header(mms.from));
    json.insert(QLatin1String("to"), array(mms.to, header));
    json.insert(QLatin1String("subject"), header(mms.subject));
    json.insert(QLatin1String("date"), text(mms.date.toString(Qt::ISODate)));
    json.insert(QLatin1String("parts"), array(mms.parts, partObject));
}

static QByteArray written(const QJsonObject &object)
{
    return printableJson(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

/** Writes a list one by one: all of a message at once takes several hundred times its size. */
template<typename List, typename Make>
static void writeList(QIODevice &out, const char *key, const List &elements, Make make)
{
    out.write(QByteArray(",\"") + key + "\":[");
    QByteArray comma;
    for (const auto &element : elements) {
        out.write(comma + written(make(element)));
        comma = ",";
    }
    out.write("]");
}

using NodeAtDepth = std::pair<const SmilNode *, int>;

static void flatten(const SmilNode &node, int depth, QList<NodeAtDepth> &nodes)
{
    nodes.append({&node, depth});
    for (const SmilNode &child : node.children) {
        flatten(child, depth + 1, nodes);
    }
}

static void writeSmil(const Message &message, QIODevice &out)
{
    QList<NodeAtDepth> nodes;
    flatten(message.document.body.root, 0, nodes);
    writeList(out, "nodes", nodes, [](const NodeAtDepth &at) {
        return object({{"depth", at.second},
                       {"type", QLatin1String(at.first->type == SmilNode::Seq ? "seq" : "par")},
                       {"dur", text(at.first->dur.toString())},
                       {"refs", array(at.first->refs, refObject)}});
    });
    const SmilScreen screen(message.document.header.layout);
    const QList<SmilCue> cues = SmilTimeline(message.dom.documentElement()).cues();
    writeList(out, "cues", cues,
              [&](const SmilCue &cue) { return cueObject(cue, screen, message.parts.find(cue.ref.src)); });
}

void showJson(const Message &message, QIODevice &out)
{
    const Problem &problem = message.problem;
    const bool isComplete = message.outcome == SmilParser::Complete;
    const SmilSlideshow show = message.isReadable() ? message.slideshow() : SmilSlideshow();
    QJsonObject json = object({{"file", message.file},
                               {"error", text(problem.text)},
                               {"line", stated(problem.line != 0, problem.line)},
                               {"column", stated(problem.line != 0, problem.column)},
                               {"duration", stated(message.isReadable(), number(show.duration()))},
                               {"header", stated(isComplete, headerObject(message.document.header))}});
    if (!message.mms.parts.isEmpty()) {
        addMessage(message, json);
    }
    out.write(written(json).chopped(1));
    if (isComplete) {
        writeSmil(message, out);
    }
    if (message.isReadable()) {
        writeList(out, "slides", firstSlides(show), [](const SmilSlide &slide) {
            return object({{"begin", number(slide.begin)},
                           {"end", number(slide.end)},
                           {"parts", array(slide.parts, [](int part) { return part; })}});
        });
    }
    out.write("}\n");
}
