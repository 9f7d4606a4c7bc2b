// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "json.h"
#include "cases.h"
#include "commands.h"
#include "mmsbytes.h"
#include "modeldump.h"

#include <smilparser/smilplayback.h>

static const char *const units[] = {"pt", "in", "cm", "px", "%", "s"};
static const char *const media[] = {"text", "img", "audio", "video", "ref"};
static const char *const nodes[] = {"", "seq", "par"};

/** Whether a key is in any of the objects that stand for a kind of record. */
static QMap<QString, bool> isFound;

template<typename Record>
static QJsonValue take(const Record &, const QJsonObject &object, const char *key)
{
    isFound[QLatin1String(typeid(Record).name()) + QLatin1Char('.') + QLatin1String(key)] |=
        object.contains(QLatin1String(key));
    return object.value(QLatin1String(key));
}

// Every record is taken apart into its fields, so that this does not build when a record has one more.
static void read(const QJsonValue &json, QString &text)
{
    text = json.isString() ? QLatin1String("") + json.toString() : QString();
}

static void read(const QJsonValue &json, double &number)
{
    number = json == QJsonValue(QStringLiteral("inf")) ? qInf() : json.toDouble(qQNaN());
}

template<size_t size>
static int numberOf(const QJsonValue &json, const char *const (&names)[size])
{
    const auto isIt = [&json](const char *name) { return json.toString() == QLatin1String(name); };
    return int(std::find_if(std::begin(names), std::end(names), isIt) - std::begin(names));
}

static void read(const QJsonValue &json, SmilUnit &measure)
{
    auto &[valid, unit, value] = measure;
    valid = !json.isUndefined();
    if (valid) {
        unit = numberOf(json[QLatin1String("unit")], units);
        read(json[QLatin1String("value")], value);
        valid = measure.toString() == json[QLatin1String("text")].toString();
    }
}

static void read(const QJsonValue &json, SmilRef &ref)
{
    auto &[type, src, region] = ref;
    const QJsonObject object = json.toObject();
    type = numberOf(take(ref, object, "type"), media);
    read(take(ref, object, "src"), src);
    read(take(ref, object, "region"), region);
}

static void read(const QJsonValue &json, SmilMeta &meta)
{
    auto &[id, name, content] = meta;
    const QJsonObject object = json.toObject();
    read(take(meta, object, "id"), id);
    read(take(meta, object, "name"), name);
    read(take(meta, object, "content"), content);
}

static void read(const QJsonValue &json, SmilRegion &region)
{
    auto &[id, width, height, bottom, top, left, right, fit] = region;
    const QJsonObject object = json.toObject();
    read(take(region, object, "id"), id);
    read(take(region, object, "width"), width);
    read(take(region, object, "height"), height);
    read(take(region, object, "bottom"), bottom);
    read(take(region, object, "top"), top);
    read(take(region, object, "left"), left);
    read(take(region, object, "right"), right);
    read(take(region, object, "fit"), fit);
}

template<typename Record>
static void read(const QJsonValue &json, QList<Record> &list, const Record &blank)
{
    for (const QJsonValue &element : json.toArray()) {
        list.append(blank);
        read(element, list.last());
    }
}

static void read(const QJsonValue &json, SmilLayout &layout)
{
    auto &[rootWidth, rootHeight, topWidth, topHeight, regions] = layout;
    const QJsonObject object = json.toObject();
    read(take(layout, object, "rootLayoutWidth"), rootWidth);
    read(take(layout, object, "rootLayoutHeight"), rootHeight);
    read(take(layout, object, "topLayoutWidth"), topWidth);
    read(take(layout, object, "topLayoutHeight"), topHeight);
    read(take(layout, object, "regions"), regions, SmilRegion());
}

static void read(const QJsonValue &json, SmilHeader &header)
{
    auto &[id, className, title, spare, metas, layout] = header;
    const QJsonObject object = json.toObject();
    read(take(header, object, "id"), id);
    read(take(header, object, "className"), className);
    read(take(header, object, "title"), title);
    read(take(header, object, "metas"), metas, SmilMeta());
    read(take(header, object, "layout"), layout);
}

/** Reads the node at the beginning of the list, and those below it. */
static void read(QJsonArray &list, SmilNode &node)
{
    auto &[children, type, dur, refs] = node;
    const QJsonObject object = list.takeAt(0).toObject();
    type = numberOf(take(node, object, "type"), nodes);
    read(take(node, object, "dur"), dur);
    read(take(node, object, "refs"), refs, SmilRef(SmilRef::Ref));
    while (take(node, list.first().toObject(), "depth").toInt() > object.value(QLatin1String("depth")).toInt()) {
        children.append(SmilNode());
        read(list, children.last());
    }
}

static void read(const QJsonObject &object, SmilDocument &document)
{
    auto &[body, header] = document;
    auto &[spare1, spare2, spare3, spare4, root] = body;
    QJsonArray list = take(document, object, "nodes").toArray();
    read(list, root);
    read(take(document, object, "header"), header);
}

static void read(const QJsonValue &json, SmilCue &cue)
{
    auto &[ref, alt, params, begin, end] = cue;
    const QJsonObject object = json.toObject();
    read(take(cue, object, "ref"), ref);
    read(take(cue, object, "alt"), alt);
    read(take(cue, object, "begin"), begin);
    read(take(cue, object, "end"), end);
    const QVariantMap texts = take(cue, object, "params").toObject().toVariantMap();
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        params.insert(text.key(), text.value().toString());
    }
}

static void read(const QJsonValue &json, SmilTimeline &timeline)
{
    auto &[cues, slides, duration] = timeline;
    const QJsonObject object = json.toObject();
    read(take(timeline, object, "cues"), cues, SmilCue());
    read(take(timeline, object, "slides"), slides, 0.0);
    read(take(timeline, object, "duration"), duration);
}

static QJsonObject shown(const Message &message)
{
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    showJson(message, out);
    return out.data().count('\n') == 1 ? QJsonDocument::fromJson(out.data()).object() : QJsonObject();
}

static Message messageOf(const QByteArray &bytes)
{
    Message message;
    readBytes(bytes, QStringLiteral("file"), QString(), SmilParser::ClockDurations, message);
    return message;
}

static const QByteArray everything =
    "<smil><head id='i' title='' class='c&#x202e;&#x9b;&quot;\\'><meta/><meta id='' name='n' "
    "content='\xf0\x9f\x98\x80'/>"
    "<layout><root-layout width='160' height='240px'/><topLayout width='1in' height='2.5cm'/><region/>"
    "<region id='A' width='50%' height='36pt' top='1' left='2' bottom='3' right='4' fit='meet'/></layout></head>"
    "<body dur='3s'><par/><seq dur='1:30'><seq><img src='a' region='A' alt=''><param name='p' value='v'/></img></seq>"
    "<video src='cid:b' region='no' begin='2s' dur='"
    + QByteArray(308, '9') + "s'/></seq><par dur='" + QByteArray(308, '9')
    + "s'><audio src='c'/><text/></par><ref alt='words'/></body></smil>";

class JsonOutput : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hasAllThatTheLibraryHas();
    void wholeMessage();
    void placesAndParts();
    void whatCannotBeRead();
};

void JsonOutput::hasAllThatTheLibraryHas()
{
    QByteArray endless = everything;
    for (const QByteArray &bytes : {everything, endless.replace(" dur='3s'", "")}) {
        const Message message = messageOf(bytes);
        const QJsonObject json = shown(message);
        SmilDocument document;
        read(json, document);
        COMPARE_SEEN(QStringLiteral("reads the JSON"), ModelDump::of(document), ModelDump::of(message.document));
        QVERIFY(document == message.document);
        SmilTimeline timeline;
        read(json[QLatin1String("timeline")], timeline);
        const SmilTimeline expected(message.dom.documentElement());
        QVERIFY(timeline.cues() == expected.cues);
        QCOMPARE(timeline.slideBegins(), expected.slides);
        QCOMPARE(timeline.duration(), expected.duration);
    }
    QCOMPARE(isFound.keys(false).join(QLatin1Char(' ')), QString());
}

void JsonOutput::wholeMessage()
{
    const QByteArray headers = QByteArray("\x8C\x84\x85\x04\x3E\x4F\x0A\x11\x89") + sized('\x80' + text("me")) + '\x97'
        + text("you") + '\x96' + sized(QByteArray("\xEA\x7F") + text("\x01\xC2\x9B\xE2\x80\xAE")) + "\x84\xB3\x01"
        + part(sized(text("application/smil") + "\x85" + text("s")), everything);
    const Message message = messageOf(headers);
    QJsonObject json = shown(message);
    json.remove(QStringLiteral("header"));
    json.remove(QStringLiteral("nodes"));
    json.remove(QStringLiteral("timeline"));
    QCOMPARE(QJsonDocument(json).toJson(QJsonDocument::Compact),
             "{\"date\":\"2003-02-16T03:48:33Z\",\"file\":\"file\",\"from\":\"me\",\"parts\":[{\"name\":\"s\",\"size\":"
                 + QByteArray::number(everything.size())
                 + ",\"type\":\"application/smil\"}],\"subject\":\"\\u0001\xC2\x9B\xE2\x80\xAE\",\"to\":[\"you\"]}");
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    showJson(message, out);
    QVERIFY2(out.data().contains("\"\\u0001\\u009b\\u202e\""), "a terminal obeys what is written");
}

void JsonOutput::placesAndParts()
{
    Message message =
        messageOf("<smil><head><layout><region id='A' left='10' width='20' height='50%'/></layout></head><body>"
                  "<img src='b' region='A'/><text src='B'/><audio src='c' region='A'/></body></smil>");
    MmsMessage mms;
    mms.parts = {{QStringLiteral("a"), {}, {}, {}, {}}, {QStringLiteral("b"), {}, {}, {}, {}}};
    message.mms = mms;
    message.parts = Parts(mms);
    message.file = QString(QChar(0xd800)) + QChar(0);
    QStringList cues;
    for (const QJsonValue &cue : shown(message).value(QLatin1String("timeline"))[QLatin1String("cues")].toArray()) {
        const QJsonValue area = cue[QLatin1String("area")];
        QString line;
        for (const char *const key : {"x", "y", "width", "height"}) {
            line += QString::number(area[QLatin1String(key)].toInt(-1)) + QLatin1Char(' ');
        }
        cues += line + QString::number(cue[QLatin1String("part")].toInt(-1));
    }
    QCOMPARE(cues.join(QStringLiteral(", ")), QStringLiteral("10 0 20 20 1, 0 0 30 40 1, -1 -1 -1 -1 -1"));
    QCOMPARE(shown(message)[QLatin1String("file")].toString(), QString(QChar(0xfffd)) + QChar(0));
}

void JsonOutput::whatCannotBeRead()
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write("<smil>\n</smal>") && file.flush());
    Arguments arguments;
    arguments.json = true;
    QStringList seen;
    for (const QString &name : {file.fileName(), QStringLiteral("absent")}) {
        QBuffer out;
        out.open(QIODevice::WriteOnly);
        const Result result = showCommand.run(name, arguments, out);
        QVERIFY(!result.well && result.problems.size() == 1);
        const QJsonObject json = QJsonDocument::fromJson(out.data()).object();
        const QString place = json.contains(QLatin1String("line")) ? QStringLiteral("%1:%2:")
                                                                         .arg(json[QLatin1String("line")].toInt())
                                                                         .arg(json[QLatin1String("column")].toInt())
                                                                   : QString();
        QCOMPARE(QStringLiteral("%1:%2 %3")
                     .arg(json[QLatin1String("file")].toString(), place, json[QLatin1String("error")].toString()),
                 result.problems.first());
        seen += place.section(QLatin1Char(':'), 0, 0);
    }
    QCOMPARE(seen.join(QLatin1Char(',')), QStringLiteral("2,"));
}

QTEST_APPLESS_MAIN(JsonOutput)
#include "json.moc"
