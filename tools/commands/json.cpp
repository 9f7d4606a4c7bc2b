// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "json.h"
#include "escaping.h"

#include <smilparser/smilplayback.h>

#include <QtCore/QIODevice>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace
{
/**
 * The elements of an array, written one by one: there are as many as the message has elements, and all at once they
 * take several hundred times its size.
 */
class Elements
{
public:
    explicit Elements(QIODevice &device)
        : out(device)
    {
    }

    void add(const QJsonObject &element);

private:
    QIODevice &out;
    bool isFirst = true;
};
}

/** What an object does not take, and so does not hold. */
static QJsonValue nothing()
{
    return QJsonValue(QJsonValue::Undefined);
}

static QByteArray written(const QJsonObject &object)
{
    return printableJson(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void Elements::add(const QJsonObject &element)
{
    out.write(isFirst ? "" : ",");
    out.write(written(element));
    isFirst = false;
}

static QJsonValue toJson(const QString &text)
{
    // Half a surrogate pair, which others do not read in JSON, becomes U+FFFD on the way.
    return text.isNull() ? nothing() : QJsonValue(QString::fromStdU32String(text.toStdU32String()));
}

static QJsonValue toJson(double number)
{
    return qIsInf(number) ? QJsonValue(number > 0 ? QStringLiteral("inf") : QStringLiteral("-inf"))
                          : QJsonValue(number);
}

static QJsonValue toJson(const SmilUnit &measure)
{
    static const char *const units[] = {"pt", "in", "cm", "px", "%", "s", ""};
    if (!measure.valid) {
        return nothing();
    }
    return QJsonObject{
        {QStringLiteral("value"), toJson(measure.value)             },
        {QStringLiteral("unit"),  QLatin1String(units[measure.unit])},
        {QStringLiteral("text"),  measure.toString()                }
    };
}

static QJsonValue toJson(const SmilMeta &meta)
{
    return QJsonObject{
        {QStringLiteral("id"),      toJson(meta.id)     },
        {QStringLiteral("name"),    toJson(meta.name)   },
        {QStringLiteral("content"), toJson(meta.content)}
    };
}

static QJsonValue toJson(const SmilRegion &region)
{
    return QJsonObject{
        {QStringLiteral("id"),     toJson(region.id)    },
        {QStringLiteral("width"),  toJson(region.width) },
        {QStringLiteral("height"), toJson(region.height)},
        {QStringLiteral("bottom"), toJson(region.bottom)},
        {QStringLiteral("top"),    toJson(region.top)   },
        {QStringLiteral("left"),   toJson(region.left)  },
        {QStringLiteral("right"),  toJson(region.right) },
        {QStringLiteral("fit"),    toJson(region.fit)   }
    };
}

static QJsonValue toJson(const SmilRef &ref)
{
    return QJsonObject{
        {QStringLiteral("type"),   QLatin1String(mediaKind(ref).element)},
        {QStringLiteral("src"),    toJson(ref.src)                      },
        {QStringLiteral("region"), toJson(ref.region)                   }
    };
}

static QJsonValue toJson(const QRectF &area)
{
    return QJsonObject{
        {QStringLiteral("x"),      toJson(area.x())     },
        {QStringLiteral("y"),      toJson(area.y())     },
        {QStringLiteral("width"),  toJson(area.width()) },
        {QStringLiteral("height"), toJson(area.height())}
    };
}

template<typename List>
static QJsonArray toArray(const List &list)
{
    QJsonArray array;
    for (const auto &element : list) {
        array.append(toJson(element));
    }
    return array;
}

static QJsonObject toJson(const SmilHeader &header)
{
    const SmilLayout &layout = header.layout;
    const QJsonObject sizes{
        {QStringLiteral("rootLayoutWidth"),  toJson(layout.rootLayoutWidth) },
        {QStringLiteral("rootLayoutHeight"), toJson(layout.rootLayoutHeight)},
        {QStringLiteral("topLayoutWidth"),   toJson(layout.topLayoutWidth)  },
        {QStringLiteral("topLayoutHeight"),  toJson(layout.topLayoutHeight) },
        {QStringLiteral("regions"),          toArray(layout.regions)        }
    };
    return {
        {QStringLiteral("id"),        toJson(header.id)       },
        {QStringLiteral("className"), toJson(header.className)},
        {QStringLiteral("title"),     toJson(header.title)    },
        {QStringLiteral("metas"),     toArray(header.metas)   },
        {QStringLiteral("layout"),    sizes                   }
    };
}

static void addMessage(const Message &message, QJsonObject &object)
{
    const MmsMessage &mms = message.mms;
    QJsonArray parts;
    for (int i = 0; i < int(mms.parts.size()); ++i) {
        parts.append(QJsonObject{
            {QStringLiteral("name"), toJson(message.parts.at(i).name)   },
            {QStringLiteral("type"), toJson(mms.parts.at(i).type)       },
            {QStringLiteral("size"), double(mms.parts.at(i).data.size())}
        });
    }
    object.insert(QStringLiteral("from"), toJson(mms.from));
    object.insert(QStringLiteral("to"), toArray(mms.to));
    object.insert(QStringLiteral("subject"), toJson(mms.subject));
    object.insert(QStringLiteral("date"), mms.date.isValid() ? toJson(mms.date.toString(Qt::ISODate)) : nothing());
    object.insert(QStringLiteral("parts"), parts);
}

static void writeNodes(const SmilNode &node, int depth, Elements &nodes)
{
    nodes.add({
        {QStringLiteral("depth"), depth                                                                     },
        {QStringLiteral("type"),  node.type == SmilNode::Seq ? QStringLiteral("seq") : QStringLiteral("par")},
        {QStringLiteral("dur"),   toJson(node.dur)                                                          },
        {QStringLiteral("refs"),  toArray(node.refs)                                                        }
    });
    for (const SmilNode &child : node.children) {
        writeNodes(child, depth + 1, nodes);
    }
}

static QJsonObject paramsOf(const SmilCue &cue)
{
    QJsonObject params;
    for (auto param = cue.params.cbegin(); param != cue.params.cend(); ++param) {
        params.insert(toJson(param.key()).toString(), toJson(param.value()));
    }
    return params;
}

/** Where a cue is shown when nothing shares the area with it. */
static QRectF areaOf(const SmilCue &cue, const SmilScreen &screen)
{
    const int region = screen.regionIndex(cue.ref.region);
    return region < 0 ? QRectF(QPointF(), screen.size()) : screen.regionRects().at(region);
}

static void writeCues(const Message &message, const SmilTimeline &timeline, Elements &cues)
{
    const SmilScreen screen(message.document.header.layout);
    for (const SmilCue &cue : timeline.cues()) {
        const int part = message.parts.find(cue.ref.src);
        cues.add({
            {QStringLiteral("begin"),  toJson(cue.begin)                                             },
            {QStringLiteral("end"),    toJson(cue.end)                                               },
            {QStringLiteral("ref"),    toJson(cue.ref)                                               },
            {QStringLiteral("alt"),    toJson(cue.alt)                                               },
            {QStringLiteral("params"), paramsOf(cue)                                                 },
            {QStringLiteral("area"),   cue.ref.type == SmilRef::Audio ? nothing() : toJson(areaOf(cue, screen))},
            {QStringLiteral("part"),                        part < 0 ? nothing() : part                                                                }
        });
    }
}

void showJson(const Message &message, QIODevice &out)
{
    QJsonObject beginning{
        {QStringLiteral("file"),   toJson(message.file)           },
        {QStringLiteral("header"), toJson(message.document.header)}
    };
    if (message.parts.areKnown()) {
        addMessage(message, beginning);
    }
    out.write(written(beginning).chopped(1) + ",\"nodes\":[");
    Elements nodes(out);
    writeNodes(message.document.body.root, 0, nodes);
    const SmilTimeline timeline(message.dom.documentElement());
    out.write("],\"timeline\":"
              + written({
                            {QStringLiteral("duration"), toJson(timeline.duration())},
                            {QStringLiteral("slides"),   toArray(timeline.slideBegins()) }
    })
                    .chopped(1)
              + ",\"cues\":[");
    Elements cues(out);
    writeCues(message, timeline, cues);
    out.write("]}}\n");
}

void showJson(const QString &file, const Problem &problem, QIODevice &out)
{
    const auto place = [&problem](int number) { return problem.line == 0 ? nothing() : QJsonValue(number); };
    out.write(written({
                  {QStringLiteral("file"),   toJson(file)         },
                  {QStringLiteral("error"),  toJson(problem.text) },
                  {QStringLiteral("line"),   place(problem.line)  },
                  {QStringLiteral("column"), place(problem.column)}
    })
              + '\n');
}
