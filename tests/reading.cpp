// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

#include <memory>

class Reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inputs_data();
    void inputs();
    void options_data();
    void options();
    void deepDurations();
    void devices_data();
    void devices();
    void walks_data();
    void walks();
};

/** The messages that @p letters stand for, capitals for debug lines, of which only the first @p lines come. */
static QString sent(const QString &letters, int lines = 3)
{
    const QMap<QChar, QString> texts = {
        {QLatin1Char('S'), QStringLiteral("DBegin to parse smil document. |")               },
        {QLatin1Char('H'), QStringLiteral("DSmil document have a head. |")                  },
        {QLatin1Char('B'), QStringLiteral("DSmil document have a body. |")                  },
        {QLatin1Char('r'), QStringLiteral("WFail to find SMIL document!|")                  },
        {QLatin1Char('h'), QStringLiteral("WFail to find SMIL head!|")                      },
        {QLatin1Char('b'), QStringLiteral("WFail to find SMIL body!|")                      },
        {QLatin1Char('x'), QStringLiteral("WFail to parse SMIL document: '%1' at (%2,%3)!|")},
    };
    QString all;
    for (const QChar letter : letters) {
        all += letter.isUpper() && --lines < 0 ? QString() : texts.value(letter);
    }
    return all;
}

/** No outcome, so that one that is not written shows. */
static const auto none = SmilParser::Outcome(7);

/** What the last of these letters says of the input. */
static SmilParser::Outcome outcomeOf(const QString &letters)
{
    const QMap<QChar, SmilParser::Outcome> outcomes = {
        {QLatin1Char('B'), SmilParser::Complete},
        {QLatin1Char('r'), SmilParser::NoSmil  },
        {QLatin1Char('h'), SmilParser::NoHead  },
        {QLatin1Char('b'), SmilParser::NoBody  },
    };
    return outcomes.value(letters.back(), SmilParser::NotWellFormed);
}

/** Hands the element that @p xml is, or a null one, to the walk for its name; into @p node when there is one. */
static bool walk(SmilParser &parser, const QString &xml, SmilNode *node = nullptr, int depth = 0)
{
    QDomDocument dom;
    dom.setContent(xml);
    QDomElement element = dom.documentElement();
    const QString name = element.isNull() ? xml : element.tagName();
    return node                            ? parser.parseSmilNodes(element, *node, depth)
        : name == QStringLiteral("head")   ? parser.parseSmilHead(element)
        : name == QStringLiteral("body")   ? parser.parseSmilBody(element)
        : name == QStringLiteral("layout") ? parser.parseLayout(element)
                                           : parser.parseSmilDocument(element);
}

void Reading::inputs_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("messages"); // as of sent(); malformed input has its line after the letter
    QTest::addColumn<QString>("model"); // null when as before
    addCases("reading.txt");

    // "smil" and "body" are levels too.
    const QString deep = QStringLiteral("<smil><head/><body>%1</body></smil>");
    const auto pars = [](int n) { return QStringLiteral("<par>").repeated(n) + QStringLiteral("</par>").repeated(n); };
    QTest::newRow("deepest") << deep.arg(pars(510)) << "SHB"
                             << QStringLiteral("- - - / par -") + QStringLiteral(" [par -").repeated(510)
            + QString(510, QLatin1Char(']'));
    QTest::newRow("too deep") << deep.arg(pars(511)) << "x1" << QString();
    // Longer than what is read of a device at once, so that what remains is well formed.
    QTest::newRow("something well formed after an error")
        << QStringLiteral("<a></b>%1<smil><head/><body/></smil>").arg(QString(100000, QLatin1Char(' '))) << "x1"
        << QString();
}

void Reading::inputs()
{
    QFETCH(QString, input);
    QFETCH(QString, messages);
    QFETCH(QString, model);
    const bool malformed = messages.startsWith(QLatin1Char('x'));
    const int errorLine = malformed ? messages.mid(1).toInt() : -7;
    if (model.isNull()) {
        model = QStringLiteral("- - 'old' / par 9s [par -]");
    }
    QString warning;
    // Every choice of null pointers, with and without an outcome, and debugging switched off after any number of lines.
    for (int given = 15; given >= 0; --given) {
        SmilParser parser(input.toUtf8());
        QVERIFY(walk(parser, QStringLiteral("<head title='old'/>")));
        QVERIFY(walk(parser, QStringLiteral("<body dur='9s'><par/></body>")));
        QString error = QStringLiteral("kept");
        int line = -7;
        int column = -8;
        const int lines = given % 4;
        Messages actual(lines);
        QString *const errorMsg = given & 1 ? &error : nullptr;
        int *const errorLineAt = given & 2 ? &line : nullptr;
        int *const errorColumn = given & 4 ? &column : nullptr;
        SmilParser::Outcome outcome = none;
        const SmilDocument &result = given & 8
            ? parser.parse(SmilParser::AsWritten, &outcome, errorMsg, errorLineAt, errorColumn)
            : parser.parse(errorMsg, errorLineAt, errorColumn);
        QCOMPARE(int(outcome), int(given & 8 ? outcomeOf(messages) : none));
        if (given == 15) {
            warning = sent(QStringLiteral("x")).arg(error).arg(line).arg(column);
        }
        QCOMPARE(actual.take(), malformed ? warning : sent(messages, lines));
        QCOMPARE(error != QStringLiteral("kept"), malformed && given & 1);
        QCOMPARE(line, given & 2 ? errorLine : -7);
        QCOMPARE(column != -8, malformed && given & 4);
        QCOMPARE(Outline::of(result), model);
        // Input is read once.
        SmilParser(QByteArray()).parse();
        const QString noInput = actual.take();
        QCOMPARE(&parser.parse(), &result);
        QCOMPARE(actual.take(), noInput);
        QCOMPARE(Outline::of(result), model);
    }
}

void Reading::options_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("model");
    addCases("options.txt");
}

void Reading::options()
{
    QFETCH(QString, input);
    QFETCH(QString, options);
    SmilParser::ReadOptions given;
    given.setFlag(SmilParser::ClockDurations, options.contains(QLatin1String("ClockDurations")));
    given.setFlag(SmilParser::KeepRootSize, options.contains(QLatin1String("KeepRootSize")));
    Messages messages;
    SmilParser plain(input.toUtf8());
    SmilParser::Outcome expected = none;
    plain.parse(SmilParser::AsWritten, &expected);
    const QString told = messages.take();

    Messages again;
    SmilParser parser(input.toUtf8());
    SmilParser::Outcome outcome = none;
    const SmilDocument &result = parser.parse(given, &outcome);
    QTEST(Outline::of(result), "model");
    QCOMPARE(again.take(), told);
    QCOMPARE(int(outcome), int(expected));
    // There is no more input: the model stays, and the outcome says why.
    parser.parse(given, &outcome);
    QCOMPARE(int(outcome), int(SmilParser::NotWellFormed));
    QTEST(Outline::of(result), "model");
}

/** As deep as parse() reads, each level with a duration of its own, on the stack that SECURITY.md promises to do with.
 */
void Reading::deepDurations()
{
    const int levels = SmilParser::MaxDepth - 2;
    QString text = QStringLiteral("<smil><head/><body>");
    for (int i = 1; i <= levels; ++i) {
        text += QStringLiteral("<par dur='%1ms'>").arg(i);
    }
    text += QStringLiteral("</par>").repeated(levels) + QStringLiteral("</body></smil>");
    QStringList durations;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        SmilParser parser(text.toUtf8());
        const SmilDocument &message = parser.parse(SmilParser::ClockDurations);
        for (const SmilNode *node = &message.body.root; !node->children.isEmpty();) {
            node = &node->children.first();
            durations << node->dur.toString();
        }
    }));
#ifndef __SANITIZE_ADDRESS__ // which takes several times the stack
    thread->setStackSize(512 * 1024);
#endif
    thread->start();
    thread->wait();
    QCOMPARE(durations.size(), levels);
    for (int i = 1; i <= levels; ++i) {
        QCOMPARE(durations.at(i - 1), QStringLiteral("%1s").arg(i / 1000.0));
    }
}

void Reading::devices_data()
{
    QTest::addColumn<int>("position"); // -1 when it is not open, -2 when there is none
    QTest::addColumn<QString>("letters");

    QTest::newRow("null") << -2 << "x";
    QTest::newRow("not open") << -1 << "x";
    QTest::newRow("before the message") << 0 << "x";
    QTest::newRow("at the message") << 4 << "SHB";
    QTest::newRow("at its end") << 31 << "x";
}

void Reading::devices()
{
    QFETCH(int, position);
    QFETCH(QString, letters);
    Messages messages;
    QBuffer device;
    device.setData("junk<smil><head/><body/></smil>");
    if (position >= 0) {
        device.open(QIODevice::ReadOnly);
        device.seek(position);
    }
    SmilParser parser(position > -2 ? &device : nullptr);
    QCOMPARE(device.isOpen(), position >= 0);
    QCOMPARE(device.pos(), position >= 0 ? device.size() : 0);
    device.close();
    device.setData("<smil/>"); // too late
    messages.take(); // Qt's own, of a device that is not open
    QString error;
    int line = 0;
    int column = 0;
    parser.parse(&error, &line, &column);
    const QString expected = sent(letters);
    QCOMPARE(messages.take(), letters == QStringLiteral("x") ? expected.arg(error).arg(line).arg(column) : expected);
}

void Reading::walks_data()
{
    QTest::addColumn<QString>("depth"); // null unless it is into a node of the host's own
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("outcome"); // "+" when the last returns true, then the messages of all
    QTest::addColumn<QString>("model");
    addCases("walks.txt");
    // Deeper than parse() would let it come, in a DOM of the host's own: the body is refused, and not said to be there.
    QTest::newRow("body too deep") << QString()
                                   << QStringLiteral("<x><head title='t'/><body dur='1s'>%1%2</body></x>")
                                          .arg(QStringLiteral("<par>").repeated(513),
                                               QStringLiteral("</par>").repeated(513))
                                   << "-SH"
                                   << "- - 't' / par 1s";
}

void Reading::walks()
{
    QFETCH(QString, depth);
    QFETCH(QString, steps);
    QFETCH(QString, outcome);
    SmilDocument own;
    own.body.root.type = SmilNode::Seq;
    own.body.root.dur = SmilUnit(QStringLiteral("9s"));
    own.body.root.refs << SmilRef(SmilRef::Text);
    own.body.root.children << SmilNode();
    SmilParser parser(QByteArray("<"));
    Messages messages;
    bool result = false;
    for (const QString &step : steps.split(QLatin1Char(';'))) {
        result = walk(parser, step, depth.isNull() ? nullptr : &own.body.root, depth.toInt());
    }
    QCOMPARE(result, outcome.startsWith(QLatin1Char('+')));
    QCOMPARE(messages.take(), sent(outcome));
    const SmilDocument model = parser.parse(); // finds no input, so that the model stays
    QTEST(Outline::of(depth.isNull() ? model : own), "model");
    QVERIFY(depth.isNull() || Outline::of(model) == Outline::of(SmilDocument()));
}

QTEST_GUILESS_MAIN(Reading)

#include "reading.moc"
