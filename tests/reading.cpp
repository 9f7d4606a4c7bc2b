// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "guardtesthelpers.h"

class Reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inputs_data();
    void inputs();
    void nullPointers();
    void debugLines();
    void deepDurations();
    void trees();
    void declarations();
    void oldElements();
    void devices();
    void walks_data();
    void walks();
    void nodes_data() { addCases("nodes.txt"); }
    void nodes();
    void differences_data() { addCases("differences.txt"); }
    void differences();
};

static const auto unwritten = SmilParser::Outcome(7);
static const QString began = QStringLiteral("debug: Begin to parse smil document. \n");
static const QString hasHead = QStringLiteral("debug: Smil document have a head. \n");
static const QString hasBody = QStringLiteral("debug: Smil document have a body. \n");

/** The messages about an input with that outcome, such as "error on line 3"; none about anything else. */
static QString messagesOn(const QString &outcome)
{
    static const QMap<QString, QString> all = {
        {QStringLiteral("complete"), began + hasHead + hasBody},
        {QStringLiteral("no smil"), QStringLiteral("warning: Fail to find SMIL document!\n")},
        {QStringLiteral("no head"), began + QStringLiteral("warning: Fail to find SMIL head!\n")},
        {QStringLiteral("no body"), began + hasHead + QStringLiteral("warning: Fail to find SMIL body!\n")},
        {QStringLiteral("body refused"), began + hasHead},
    };
    return outcome.startsWith(QLatin1String("error"))
        ? QStringLiteral("warning: Fail to parse SMIL document: 'TEXT' at (LINE,COLUMN)!\n")
        : all.value(outcome);
}

/** All that a host sees of an input with that outcome. */
static QString expected(const QString &outcome, const QString &model)
{
    return outcome + QLatin1Char('\n') + messagesOn(outcome) + model;
}

/** What a host sees of parse(): the outcome, whether and where there is an error, the messages, the model. */
static QString seen(SmilParser &parser, SmilParser::ReadOptions options = SmilParser::AsWritten)
{
    static const char *const outcomes[] = {"complete", "error", "no smil", "no head", "no body"};
    Messages messages;
    SmilParser::Outcome outcome = unwritten;
    QString error = QStringLiteral("untouched");
    int line = -7;
    int column = -8;
    const QString model = ModelDump::of(parser.parse(options, &outcome, &error, &line, &column));
    const QString place = QStringLiteral("'%1' at (%2,%3)").arg(error).arg(line).arg(column);
    const QString told = messages.take().replace(place, QStringLiteral("'TEXT' at (LINE,COLUMN)"));
    const int written = int(error != QStringLiteral("untouched")) + int(line != -7) + int(column != -8);
    return (outcome == unwritten ? QStringLiteral("no outcome") : QLatin1String(outcomes[outcome]))
        + (written == 0 ? QString() : QStringLiteral(" on line %1").arg(written == 3 ? QString::number(line) : place))
        + QLatin1Char('\n') + told + model;
}

/** The element that @p xml is; null when that is no XML. */
static QDomElement elementOf(const QString &xml)
{
    QDomDocument dom;
    dom.setContent(xml);
    return dom.documentElement();
}

/** Hands the element that @p xml is, or a null one, to the walk for its name. */
static bool walk(SmilParser &parser, const QString &xml)
{
    QDomElement element = elementOf(xml);
    const QString name = element.isNull() ? xml : element.tagName();
    return name == QStringLiteral("head")  ? parser.parseSmilHead(element)
        : name == QStringLiteral("body")   ? parser.parseSmilBody(element)
        : name == QStringLiteral("layout") ? parser.parseLayout(element)
                                           : parser.parseSmilDocument(element);
}

static QString times(int number, const char *text)
{
    return QString::fromLatin1(text).repeated(number);
}

void Reading::inputs_data()
{
    addCases("reading.txt");
    const QString start = QStringLiteral("<smil><head/><body>");
    const QString end = QStringLiteral("</body></smil>");
    const QString complete = QStringLiteral("complete");
    const QString error = QStringLiteral("error on line 1");
    QTest::newRow("null") << QString() << "none" << error << "unchanged";
    QTest::newRow("well formed after an error")
        << QStringLiteral("<a></b>") + times(100000, " ") + start + end << "none" << error << "unchanged";
    QTest::newRow("too deep") << start + times(511, "<par>") + times(511, "</par>") + end << "none" << error
                              << "unchanged";
    QTest::newRow("deepest") << start + times(510, "<par>") + times(510, "</par>") + end << "none" << complete
                             << QStringLiteral("<body>") + times(509, "<par>") + QStringLiteral("<par/>")
            + times(509, "</par>") + QStringLiteral("</body>");
}

void Reading::inputs()
{
    QFETCH(QString, input);
    QFETCH(QString, options);
    QFETCH(QString, outcome);
    QFETCH(QString, model);
    SmilParser::ReadOptions flags;
    flags.setFlag(SmilParser::ClockDurations, options.contains(QLatin1String("ClockDurations")));
    flags.setFlag(SmilParser::KeepRootSize, options.contains(QLatin1String("KeepRootSize")));
    flags.setFlag(SmilParser::DecodedText, options.contains(QLatin1String("DecodedText")));
    SmilParser parser(input.toUtf8());
    walk(parser, QStringLiteral("<head title='earlier'/>"));
    walk(parser, QStringLiteral("<body dur='9s'><par/></body>"));
    if (model == QStringLiteral("unchanged")) {
        model = QStringLiteral("<head title='earlier'/><body dur='9s'><par/></body>");
    }
    const QString reads = QStringLiteral("reads, with options %1, %2").arg(options, input);
    COMPARE_SEEN(reads, seen(parser, flags), expected(outcome, model));
    COMPARE_SEEN(reads + QStringLiteral(" and reads once more"), seen(parser, flags),
                 expected(QStringLiteral("error on line 1"), model));
}

/** Whatever is null, the rest is written, and the warning says all; so it does in the call without options. */
void Reading::nullPointers()
{
    const QByteArray input = "<smil>\n<head/><body>";
    const QString told = toldByReaderAlone(input);
    for (int given = 0; given < 16; ++given) {
        SmilParser::Outcome outcome = unwritten;
        QString text;
        int line = 0;
        int column = 0;
        QString *const textAt = given & 1 ? &text : nullptr;
        int *const lineAt = given & 2 ? &line : nullptr;
        int *const columnAt = given & 4 ? &column : nullptr;
        Messages messages;
        SmilParser parser(input);
        const SmilDocument &model = given & 8 ? parser.parse(SmilParser::AsWritten, &outcome, textAt, lineAt, columnAt)
                                              : parser.parse(textAt, lineAt, columnAt);
        const int written = (text.isEmpty() ? 0 : 1) + (line == 2 ? 2 : 0) + (column > 0 ? 4 : 0)
            + (outcome == SmilParser::NotWellFormed ? 8 : 0);
        COMPARE_SEEN(QStringLiteral("reads with some pointers null"), messages.take() + ModelDump::of(model), told);
        QVERIFY2(written == given, "what is written is not what was asked for");
    }
}

/** Each line comes only while the host's flag is set. */
void Reading::debugLines()
{
    for (int lines = 0; lines <= 3; ++lines) {
        Messages messages(lines);
        SmilParser(QByteArray("<smil><head/><body/></smil>")).parse();
        COMPARE_SEEN(QStringLiteral("switches debug lines off after %1 of them").arg(lines), messages.take(),
                     QStringList({began, hasHead, hasBody}).mid(0, lines).join(QString()));
    }
}

/** Each level that parse() reads has a duration of its own, and takes no more stack than SECURITY.md says. */
void Reading::deepDurations()
{
    uint kibibytes = 512;
#if defined(__x86_64__) && QT_VERSION < QT_VERSION_CHECK(6, 5, 0) // where it was measured
#ifdef __OPTIMIZE__
    const uint ofQt6 = 128;
#else
    const uint ofQt6 = 176;
#endif
    kibibytes = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? 224 : ofQt6;
#endif
    QString text = QStringLiteral("<smil><head/><body>");
    QString expected;
    for (int level = 0; level < 510; ++level) {
        text += QStringLiteral("<par dur='%1ms'>").arg(level);
        expected += QStringLiteral("%1ms ").arg(level);
    }
    text += times(510, "</par>") + QStringLiteral("</body></smil>");
    QString durations;
    onSmallStack(
        [&] {
            SmilParser parser(text.toUtf8());
            const SmilDocument &model = parser.parse(SmilParser::ClockDurations);
            for (const SmilNode *node = &model.body.root; !node->children.isEmpty();) {
                node = &node->children.first();
                durations += QStringLiteral("%1ms ").arg(node->dur.value * 1000);
            }
            parser.getContent();
        },
        kibibytes);
    QCOMPARE(durations, expected);
}

/** What dom() holds after each step, and a copy that was taken before it. */
void Reading::trees()
{
    Messages messages(0);
    QDomDocument copy;
    QString seen;
    const auto look = [&](const char *step, const QDomDocument &dom) {
        const auto dump = [](const QDomDocument &tree) {
            return tree.isNull() ? QStringLiteral("null") : QLatin1Char('"') + ModelDump::of(tree) + QLatin1Char('"');
        };
        seen += QStringLiteral("%1: %2, copy %3\n").arg(QLatin1String(step), dump(dom), dump(copy));
    };
    {
        SmilParser parser(QByteArray("<smil><head/><body><img alt='A'/></body></smil>"));
        look("new", parser.dom());
        parser.parse();
        look("read", parser.dom());
        copy = parser.dom();
        parser.getContent();
        look("rendered", parser.dom());
        copy = parser.dom();
        parser.parse();
        look("read again", parser.dom());
    }
    {
        SmilParser parser(QByteArray("<html/>"));
        parser.parse();
        look("another root", parser.dom());
        copy = parser.dom();
    }
    look("gone", copy);
    SmilParser parser(QByteArray("<smil><head/><body>"));
    parser.getContent();
    copy = parser.dom();
    parser.parse();
    look("cut off", parser.dom());
    const QString written = QStringLiteral("<smil><head><layout><root-layout/></layout></head><body/></smil>");
    COMPARE_SEEN(QStringLiteral("asks for the tree"), seen,
                 QStringLiteral("new: null, copy null\n"
                                "read: \"%1\", copy null\n"
                                "rendered: \"%2\", copy \"%1\"\n"
                                "read again: null, copy \"\"\n"
                                "another root: \"<html/>\", copy \"\"\n"
                                "gone: \"<html/>\", copy \"<html/>\"\n"
                                "cut off: null, copy \"%3\"\n")
                     .arg(QStringLiteral("<smil><head/><body><img alt='A'/></body></smil>"), written,
                          QStringLiteral("<smil><head/><body/></smil>")));
}

/** A tree that a host changes and writes is UTF-8, whatever the input was in. */
void Reading::declarations()
{
    const QString text =
        QStringLiteral("<?xml version='1.0' encoding='%1'?><smil><head title='\u00e4'/><body/></smil>");
    for (const QByteArray &input :
         {text.arg(QStringLiteral("ISO-8859-1")).toLatin1(), text.arg(QStringLiteral("utf-8")).toUtf8()}) {
        SmilParser parser(input);
        parser.parse();
        QCOMPARE(QString::fromUtf8(parser.dom().toByteArray(-1)),
                 QStringLiteral("<smil><head title=\"\u00e4\"/><body/></smil>"));
    }
}

/** They are on their own when the document is read into again, and may go in any order, also after the document. */
void Reading::oldElements()
{
    for (const bool isKept : {false, true}) {
        Messages messages(0);
        SmilParser parser(QByteArray("<smil><head/><body/></smil>"));
        parser.parse();
        QDomDocument copy = isKept ? parser.dom() : QDomDocument();
        QDomElement smil = parser.dom().documentElement();
        QDomElement body = smil.lastChildElement();
        parser.parse();
        QVERIFY2(smil.parentNode().isNull(), "an element of the old tree is in the document that was read into again");
        copy.clear();
        smil.clear();
        body.clear();
    }
}

/** All from where the device is, at once; it stays the host's. */
void Reading::devices()
{
    const QString none = expected(QStringLiteral("error on line 1"), QStringLiteral("<body/>"));
    const QString message = expected(QStringLiteral("complete"), QStringLiteral("<body/>"));
    for (const int position : {-1, 0, 4, 31}) {
        const bool isOpen = position >= 0;
        Messages ofQt; // about a device that is not open
        QBuffer device;
        device.setData("junk<smil><head/><body/></smil>");
        if (isOpen) {
            device.open(QIODevice::ReadOnly);
            device.seek(position);
        }
        SmilParser parser(&device);
        QVERIFY2(device.isOpen() == isOpen && device.pos() == (isOpen ? device.size() : 0), "the device is elsewhere");
        device.close();
        device.setData("<smil/>"); // too late
        COMPARE_SEEN(QStringLiteral("reads a device from %1").arg(position), seen(parser),
                     position == 4 ? message : none);
    }
    SmilParser parser(static_cast<QIODevice *>(nullptr));
    COMPARE_SEEN(QStringLiteral("reads no device"), seen(parser), none);
}

void Reading::walks_data()
{
    QTest::addColumn<QStringList>("elements"); // a name alone is a null element
    QTest::addColumn<bool>("returns"); // the last walk
    QTest::addColumn<QString>("says"); // the outcome whose messages come
    QTest::addColumn<QString>("model");
    const auto row = [](const char *name, const QByteArrayList &elements, bool returns, const char *says,
                        const QByteArray &model) {
        QTest::newRow(name) << QString::fromLatin1(elements.join(';')).split(u';') << returns
                            << QString::fromLatin1(says) << QString::fromLatin1(model);
    };
    const auto pars = [](int levels, const QByteArray &inside = QByteArray()) {
        return QByteArray("<par>").repeated(levels) + inside + QByteArray("</par>").repeated(levels);
    };
    const char *const layout = "<layout><root-layout width='1'/><topLayout height='2'/><region/></layout>";
    row("head twice", {"<head id='a' title='t'><meta id='1'/></head>", "<head id='b'><meta id='2'/></head>"}, true, "",
        "<head id='b'><meta id='1'/><meta id='2'/></head><body/>");
    row("null head", {"<head title='t'><meta/></head>", "head"}, true, "", "<head><meta/></head><body/>");
    row("layout without sizes", {layout, "<layout><region id='b'/></layout>"}, true, "",
        "<head><layout><root-layout width='1px'/><topLayout height='2px'/><region/><region "
        "id='b'/></layout></head><body/>");
    row("layout with other sizes", {layout, "<layout><root-layout/><topLayout width='3'/></layout>"}, true, "",
        "<head><layout><topLayout width='3px'/><region/></layout></head><body/>");
    row("null layout", {layout, "layout"}, true, "",
        "<head><layout><root-layout width='1px'/><topLayout height='2px'/><region/></layout></head><body/>");
    row("body twice", {"<body dur='1s'><par/><img/></body>", "<body><seq/><img/></body>"}, true, "",
        "<body><par/><seq/><img/><img/></body>");
    row("null body", {"<body dur='1s'><par/></body>", "body"}, true, "", "<body><par/></body>");
    row("deepest body", {"<body>" + pars(512) + "</body>"}, true, "", "<body>" + pars(511, "<par/>") + "</body>");
    row("body too deep", {"<x><head title='t'/><body dur='1s'>" + pars(513) + "</body></x>"}, false, "body refused",
        "<head title='t'/><body dur='1s'/>");
    row("root under another name", {"<x><head title='t'/><body dur='1s'/></x>"}, true, "complete",
        "<head title='t'/><body dur='1s'/>");
    row("root without a head", {"<body dur='1s'/>", "<x><body/></x>"}, false, "no head", "<body dur='1s'/>");
    row("root without a body", {"<x><head title='t'/></x>"}, false, "no body", "<head title='t'/><body/>");
    row("null root", {"x"}, false, "no head", "<body/>");
}

/** Each element goes to the walk for its name. */
void Reading::walks()
{
    QFETCH(QStringList, elements);
    QFETCH(bool, returns);
    QFETCH(QString, says);
    QFETCH(QString, model);
    SmilParser parser(QByteArray("<"));
    Messages messages;
    bool result = false;
    for (const QString &element : std::as_const(elements)) {
        result = walk(parser, element);
    }
    const QString told = messages.take();
    QCOMPARE(result, returns);
    // Finds no input, so that the model stays.
    COMPARE_SEEN(QStringLiteral("walks ") + elements.join(u' '), told + ModelDump::of(parser.parse()),
                 messagesOn(says) + model);
}

/** Into a node of the host's own, <seq dur='9s'><par/><text/></seq>. */
void Reading::nodes()
{
    QFETCH(QString, depth);
    QFETCH(QString, element);
    QFETCH(QString, returns);
    QFETCH(QString, node);
    SmilNode own(SmilNode::Seq);
    own.dur = SmilUnit(QStringLiteral("9s"));
    own.children << SmilNode();
    own.refs << SmilRef(SmilRef::Text);
    QDomElement walked = elementOf(element);
    SmilParser parser(QByteArray("<"));
    Messages messages;
    const bool result = parser.parseSmilNodes(walked, own, depth.toInt());
    const QString told = messages.take();
    COMPARE_SEEN(QStringLiteral("walks %1 at depth %2").arg(element, depth),
                 QVariant(result).toString() + QLatin1Char('\n') + told + ModelDump::of(own)
                     + ModelDump::of(parser.parse()),
                 returns + QLatin1Char('\n') + node + QStringLiteral("<body/>"));
}

/** Messages with one or the other of the values at the "?" are equal, read apart, if that is the same. */
void Reading::differences()
{
    QFETCH(QString, text);
    QFETCH(QString, values);
    const QStringList all = values.split(QLatin1Char(' '));
    for (const QString &one : all) {
        for (const QString &other : all) {
            SmilParser first(QString(text).replace(QLatin1Char('?'), one).toUtf8());
            SmilParser second(QString(text).replace(QLatin1Char('?'), other).toUtf8());
            const SmilDocument model = first.parse();
            const SmilDocument again = second.parse();
            QVERIFY2((model == again) == (one == other), qPrintable(one + QLatin1Char(' ') + other));
            QVERIFY2((model != again) == (one != other), qPrintable(one + QLatin1Char(' ') + other));
        }
    }
}

QTEST_GUILESS_MAIN(Reading)

#include "reading.moc"
