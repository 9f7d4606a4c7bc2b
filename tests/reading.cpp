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

void Reading::inputs_data()
{
    addCases("reading.txt");
    QTest::newRow("null") << QString() << "none"
                          << "error on line 1"
                          << "unchanged";
    QTest::newRow("well formed after an error")
        << QStringLiteral("<a></b>%1<smil><head/><body/></smil>").arg(QString(100000, u' ')) << "none"
        << "error on line 1"
        << "unchanged";
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
    QString pars = QStringLiteral("<par dur='510s'/>");
    for (int level = 509; level > 0; --level) {
        pars = QStringLiteral("<par dur='%1s'>%2</par>").arg(QString::number(level), pars);
    }
    const QString body = QStringLiteral("<body>%1</body>").arg(pars);
    SmilParser parser(QStringLiteral("<smil><head/>%1</smil>").arg(body).toUtf8());
    const auto readAndWrite = [&] {
        parser.parse(SmilParser::ClockDurations);
        parser.getContent();
    };
    onSmallStack(readAndWrite, kibibytes);
    COMPARE_SEEN(QStringLiteral("reads 510 levels"), ModelDump::of(parser.parse()), body); // the model stays
}

/** What dom() holds after each step, a copy that was taken before it, and an element that the host keeps. */
void Reading::trees()
{
    Messages messages(0);
    const QString read = QStringLiteral("<smil><head/><body><img alt='A'/></body></smil>");
    const QString written = QStringLiteral("<smil><head><layout><root-layout/></layout></head><body/></smil>");
    QDomDocument copy;
    QDomElement smil;
    {
        SmilParser parser(read.toUtf8());
        QVERIFY(parser.dom().isNull());
        parser.parse();
        QCOMPARE(ModelDump::of(parser.dom()), read);
        copy = parser.dom();
        parser.getContent();
        QCOMPARE(ModelDump::of(parser.dom()), written);
        QCOMPARE(ModelDump::of(copy), read);
        copy = parser.dom();
        smil = copy.documentElement();
        parser.parse();
        QVERIFY2(parser.dom().isNull() && !copy.hasChildNodes(), "there is a tree after an error");
        QVERIFY2(smil.parentNode().isNull(), "an old element is in the document that was read into again");
    }
    copy.clear();
    QCOMPARE(ModelDump::of(smil), written);
    SmilParser parser(QByteArray("<html/>"));
    parser.parse();
    QCOMPARE(ModelDump::of(parser.dom()), QStringLiteral("<html/>"));
}

/** A tree that a host changes and writes is UTF-8, whatever the input was in. */
void Reading::declarations()
{
    SmilParser parser(
        QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><smil><head title='\xe4'/><body/></smil>"));
    parser.parse();
    QCOMPARE(parser.dom().toByteArray(-1), QByteArray("<smil><head title=\"\xc3\xa4\"/><body/></smil>"));
}

/** All from where the device is, at once; it stays the host's. */
void Reading::devices()
{
    const QString none = expected(QStringLiteral("error on line 1"), QStringLiteral("<body/>"));
    for (const bool isOpen : {false, true}) {
        Messages ofQt; // about a device that is not open
        QBuffer device;
        device.setData("junk<smil><head/><body/></smil>");
        if (isOpen) {
            device.open(QIODevice::ReadOnly);
            device.seek(4);
        }
        SmilParser parser(&device);
        QVERIFY2(device.isOpen() == isOpen && device.pos() == (isOpen ? device.size() : 0), "the device is elsewhere");
        device.close();
        device.setData("<smil/>"); // too late
        COMPARE_SEEN(QStringLiteral("reads a device"), seen(parser),
                     isOpen ? expected(QStringLiteral("complete"), QStringLiteral("<body/>")) : none);
    }
    SmilParser parser(static_cast<QIODevice *>(nullptr));
    COMPARE_SEEN(QStringLiteral("reads no device"), seen(parser), none);
}

void Reading::walks_data()
{
    addCases("walks.txt");
    const QString pars = QStringLiteral("<par>").repeated(513) + QStringLiteral("</par>").repeated(513);
    QTest::newRow("body too deep") << QStringLiteral("<x><head/><body dur='1s'>%1</body></x>").arg(pars) << "false"
                                   << "body refused"
                                   << "<body dur='1s'/>";
}

/** Each element goes to the walk for its name. */
void Reading::walks()
{
    QFETCH(QString, elements);
    QFETCH(QString, returns);
    QFETCH(QString, outcome);
    QFETCH(QString, model);
    SmilParser parser(QByteArray("<"));
    Messages messages;
    bool result = false;
    for (const QString &element : elements.split(QStringLiteral(" ; "))) {
        result = walk(parser, element);
    }
    const QString told = QVariant(result).toString() + u' ' + messages.take();
    // Finds no input, so that the model stays.
    COMPARE_SEEN(QStringLiteral("walks ") + elements, told + ModelDump::of(parser.parse()),
                 returns + u' ' + messagesOn(outcome) + model);
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
