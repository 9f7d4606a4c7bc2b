// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include <QtCore/QProcess>
#include <QtTest/QtTest>
#include <QtXml/QDomDocument>

namespace
{
struct Outcome {
    int status = -1;
    QString out;
    QString err;
};
}

static Outcome run(const QString &program, const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess process;
    process.setWorkingDirectory(QStringLiteral(EXAMPLES_DIR));
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    Outcome outcome;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        outcome.status = process.exitCode();
    }
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

static Outcome smiltool(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return run(QStringLiteral(SMILTOOL), arguments, input);
}

/** Runs the script in a folder of its own, in which "old" is a file and "board" none. */
static Outcome runScript(const QString &folder, const QString &script)
{
    const QString variables = QStringLiteral("tool='%1'; board='%2/board'; old='%2/old'; echo old >\"$old\"; ");
    QString words = script;
    for (const char *const variable : {"$tool", "$board", "$old"}) {
        words.replace(QLatin1String(variable), QLatin1Char('"') + QLatin1String(variable) + QLatin1Char('"'));
    }
    return run(QStringLiteral("/bin/sh"),
               {QStringLiteral("-c"), variables.arg(QStringLiteral(SMILTOOL), folder) + words});
}

static QString readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("cannot read ") + name;
}

static QString golden(const QString &name)
{
    return readFile(QStringLiteral(GOLDEN_DIR "/") + name);
}

static QString inDocs(const char *name)
{
    return readFile(QStringLiteral(EXAMPLES_DIR "/../docs/") + QLatin1String(name));
}

class Tool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void samples_data();
    void samples();
    void problems_data();
    void problems();
    void badUsage_data();
    void badUsage();
    void encodingIsNoOtherThanTheLibrarys_data();
    void encodingIsNoOtherThanTheLibrarys();
    void theLibraryAloneReadsXml();
    void otherFilesAreHandled();
    void textFromStrangersIsEscaped();
    void lostOutputIsAnError();
    void inputIsReadToItsEnd();
    void debugLines();
    void findings_data();
    void findings();
    void help();
    void frames_data();
    void frames();
    void noPictureIsTooLarge();
    void regions_data();
    void regions();
    void toolKnowsWhatTheLibraryKnows();
    void partsAreDrawn_data();
    void partsAreDrawn();
    void picturesFitTheirRegion();
    void partsAreChecked();
    void messageAsItIsSent();
    void drawsTo_data();
    void drawsTo();
    void neverDrawsOverTheMessage();
    void neverDrawsOverAPart();
    void manualAndCompletionNameEveryFinding();
    void examples();
};

void Tool::samples_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("sample");
    for (const char *const command : {"show", "render", "check", "storyboard"}) {
        for (const char *const sample : {"holiday", "greeting", "nested"}) {
            if (qstrcmp(command, "storyboard") != 0 || qstrcmp(sample, "holiday") != 0) {
                QTest::addRow("%s %s", command, sample) << QString::fromLatin1(command) << QString::fromLatin1(sample);
            }
        }
    }
    QTest::newRow("show --plain holiday") << QStringLiteral("show --plain") << QStringLiteral("holiday");
    QTest::newRow("storyboard --parts=holiday holiday")
        << QStringLiteral("storyboard --parts=holiday") << QStringLiteral("holiday");
    QTest::newRow("render --keep holiday") << QStringLiteral("render --keep") << QStringLiteral("holiday");
}

void Tool::samples()
{
    QFETCH(QString, command);
    QFETCH(QString, sample);
    const QStringList words = command.split(QLatin1Char(' '));
    const Outcome outcome = smiltool(words + QStringList(sample + QStringLiteral(".smil")));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out,
             command.contains(QStringLiteral("--parts")) ? inDocs("figures/storyboard.svg")
                                                         : golden(sample + QLatin1Char('.') + words.join(QString())));
    QCOMPARE(outcome.status, command == QStringLiteral("check") ? 1 : 0);
}

void Tool::problems_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("line"); // a regular expression
    const QString input = QStringLiteral("-");
    QTest::newRow("absent") << QStringLiteral("absent.smil") << QByteArray()
                            << QStringLiteral("absent\\.smil: No such.*");
    QTest::newRow("a folder") << QStringLiteral(".") << QByteArray() << QStringLiteral("\\.: .+");
    QTest::newRow("endless") << QStringLiteral("/dev/zero") << QByteArray()
                             << QStringLiteral("/dev/zero: larger than 1 MiB");
    QTest::newRow("empty") << input << QByteArray() << QStringLiteral("-:1:\\d+: .+");
    QTest::newRow("not well formed") << input << QByteArray("<smil>\n<head></smil>") << QStringLiteral("-:2:\\d+: .+");
    QTest::newRow("a photo") << input << QByteArray("\xff\xd8\xff\xe0<")
                             << QStringLiteral("-:1:\\d+: this is no XML: .+");
    QTest::newRow("another root")
        << input << QByteArray("\xef\xbb\xbf <SMIL/>")
        << QStringLiteral("-: Fail to find SMIL document! The root element is \"SMIL\", not \"smil\"\\.");
    // Without the library before it, the reader of some versions of Qt crashes on half a surrogate pair.
    QTest::newRow("half a character")
        << input << QByteArray("<\0a\0/\0>\0<\0!\0-\0-\0\0\xd8-\0-\0>\0", 24)
        << QStringLiteral("-: Fail to find SMIL document! The root element is \"a\", not \"smil\"\\.");
    QTest::newRow("no head") << input << QByteArray("<smil><body/></smil>")
                             << QStringLiteral("-: Fail to find SMIL head!");
    QTest::newRow("no body") << input << QByteArray("<smil><head/></smil>")
                             << QStringLiteral("-: Fail to find SMIL body!");
}

void Tool::problems()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, input);
    QFETCH(QString, line);
    const Outcome outcome = smiltool({QStringLiteral("show"), file}, input);
    QVERIFY(outcome.err.endsWith(QLatin1Char('\n')));
    const QRegularExpression expected(QRegularExpression::anchoredPattern(line));
    QVERIFY2(expected.match(outcome.err.chopped(1)).hasMatch(), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 1);
}

/** An instruction that is no declaration declares nothing, though a reader of its own accord might think so. */
void Tool::encodingIsNoOtherThanTheLibrarys_data()
{
    QTest::addColumn<QByteArray>("document"); // in which % is the root element's name
    QTest::addColumn<QString>("findings");
    const QByteArray utf7 = "<?xml-a encoding='UTF-7'?>";
    const QString nothing = QStringLiteral("-:1: nothing plays [empty-timeline]\n");
    QTest::newRow("elements in UTF-7") << utf7 + "<%><head/><body>" + QByteArray("+ADw-x+AD4-").repeated(30000)
            + "</body></%>" << nothing;
    QTest::newRow("an entity in UTF-7") << utf7 + "<!-- +AC0-+AC0-+AD4-<!DOCTYPE % [<!ENTITY e '"
            + QByteArray(20000, 'a') + "'>]><%>" + QByteArray("&e;").repeated(20000) + "</%> --><%><head/><body/></%>"
                                        << nothing;
    QTest::newRow("UTF-16") << QByteArray("<?xml-a encoding='UTF-16'?><%><head/><body dur='x'/></%>")
                            << QStringLiteral("-:1: not understood: dur of body \"x\" [unread-measure]\n") + nothing;
}

void Tool::encodingIsNoOtherThanTheLibrarys()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, findings);
    for (const QByteArray root : {"smil", "smal"}) {
        for (const char *const command : {"show", "render", "storyboard", "check"}) {
            const Outcome outcome =
                smiltool({QLatin1String(command), QStringLiteral("-")}, QByteArray(document).replace('%', root));
            const bool isSmil = root == "smil";
            const bool isCheck = qstrcmp(command, "check") == 0;
            QCOMPARE(outcome.err,
                     isSmil ? QString()
                            : QStringLiteral(
                                "-: Fail to find SMIL document! The root element is \"smal\", not \"smil\".\n"));
            QCOMPARE(outcome.status, isSmil && !isCheck ? 0 : 1);
            QVERIFY2(!isCheck || outcome.out == (isSmil ? findings : QString()), qPrintable(outcome.out));
        }
    }
}

/** A second reader of the same bytes would be past the library's bounds, and may take them for another text. */
void Tool::theLibraryAloneReadsXml()
{
    QDirIterator files(QStringLiteral(EXAMPLES_DIR "/../tools"), QDir::Files, QDirIterator::Subdirectories);
    QVERIFY(files.hasNext());
    while (files.hasNext()) {
        const QString source = readFile(files.next());
        for (const char *const other :
             {"setContent", "QXmlStreamReader", "QXmlSimpleReader", "QTextCodec", "QStringDecoder", "lastWarning"}) {
            QVERIFY2(!source.contains(QLatin1String(other)), qPrintable(files.filePath() + QLatin1String(other)));
        }
    }
}

void Tool::badUsage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *arguments, const char *problem) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(problem);
    };
    row("", "no command given.");
    row("play holiday.smil", "unknown command 'play'.");
    row("help play", "unknown command 'play'.");
    row("show", "no file given.");
    row("show ''", "the name of a file is empty.");
    row("storyboard holiday.smil -o ''", "the name of a file is empty.");
    row("show --loud -", "Unknown option 'loud'.");
    row("show --keep -", "Unknown option 'keep'.");
    row("storyboard holiday.smil nested.smil", "a storyboard is of one file.");
    row("--ignore lost-names check holiday.smil", "no finding is called 'lost-names'.");
}

void Tool::badUsage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, problem);
    QStringList words = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    words.replaceInStrings(QStringLiteral("''"), QString());
    const Outcome outcome = smiltool(words);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QStringLiteral("smiltool: %1\nTry 'smiltool --help'.\n").arg(problem));
    QCOMPARE(outcome.status, 2);
}

void Tool::help()
{
    for (const char *const arguments : {"help", "--help", "help help", "help check", "check --help", "--help check"}) {
        const Outcome outcome = smiltool(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        const bool ofCheck = QByteArray(arguments).contains("check");
        QVERIFY2(outcome.out.contains(QLatin1String("--ignore")) == ofCheck, arguments);
        QVERIFY2(outcome.out.contains(QLatin1String("  storyboard")) != ofCheck, arguments);
        QVERIFY2(outcome.status == 0 && outcome.err.isEmpty(), arguments);
    }
}

void Tool::otherFilesAreHandled()
{
    const QStringList files{QStringLiteral("greeting.smil"), QStringLiteral("absent.smil"), QStringLiteral("-"),
                            QStringLiteral("nested.smil")};
    const Outcome outcome = smiltool(QStringList{QStringLiteral("show")} + files, "<smil/>");
    QCOMPARE(outcome.out, golden(QStringLiteral("greeting.show")) + golden(QStringLiteral("nested.show")));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 2);
    QCOMPARE(outcome.status, 1);
}

void Tool::textFromStrangersIsEscaped()
{
    const QByteArray input = "<smil><head title='a\"\\&#x9b;&#x202e;b'/><body/></smil>";
    const Outcome shown = smiltool({QStringLiteral("show"), QStringLiteral("-")}, input);
    QVERIFY2(shown.out.contains(QLatin1String("title \"a\\\"\\\\\\u{009b}\\u{202e}b\"\n")), qPrintable(shown.out));
    const Outcome rendered = smiltool({QStringLiteral("render"), QStringLiteral("-")}, input);
    QVERIFY2(rendered.out.contains(QLatin1String("=\"a&quot;\\&#x9b;&#x202e;b\"")), qPrintable(rendered.out));
    // Joiners belong into words; nowhere else.
    const Outcome separated =
        smiltool({QStringLiteral("show"), QStringLiteral("-")},
                 "<smil><head title='&#x2028;&#x2029;\xf0\x9f\xbf\xbe\xf0\x9f\x98\x80'/><body/></smil>");
    const QString separators = QString::fromUtf8("title \"\\u{2028}\\u{2029}\\u{1fffe}😀\"\n");
    QVERIFY2(separated.out.contains(separators), qPrintable(separated.out));
    const Outcome joined = smiltool({QStringLiteral("show"), QStringLiteral("-")},
                                    "<smil><head title='x&#x200d;y&#x200c; &#x200d;z&#x200d;&#x200d;'/><body/></smil>");
    const QString expected = QStringLiteral("title \"x\u200dy\\u{200c} \\u{200d}z\\u{200d}\\u{200d}\"\n");
    QVERIFY2(joined.out.contains(expected), qPrintable(joined.out));
}

void Tool::lostOutputIsAnError()
{
    const QTemporaryDir folder;
    const Outcome outcome = runScript(folder.path(), QStringLiteral("$tool show holiday.smil >/dev/full"));
    QVERIFY2(outcome.err.startsWith(QLatin1String("smiltool: standard output: ")), qPrintable(outcome.err));
    QCOMPARE(outcome.status, 1);
    const Outcome drawn =
        runScript(folder.path(), QStringLiteral("$tool storyboard holiday.smil -o /dev/stdout >/dev/full"));
    QVERIFY2(drawn.err.startsWith(QLatin1String("/dev/stdout: ")), qPrintable(drawn.err));
    QCOMPARE(runScript(folder.path(), QStringLiteral("$tool show - <&-")).err,
             QStringLiteral("-: Bad file descriptor\n"));
    QCOMPARE(drawn.status, 1);
}

void Tool::inputIsReadToItsEnd()
{
    const QByteArray message = QByteArray("<smil><head/><body/></smil>").leftJustified(1024 * 1024, ' ');
    const Outcome largest = smiltool({QStringLiteral("check"), QStringLiteral("-")}, message);
    QCOMPARE(largest.out, QStringLiteral("-:1: nothing plays [empty-timeline]\n"));
    const QTemporaryDir folder;
    const Outcome slow =
        runScript(folder.path(),
                  QStringLiteral("(head -c 99 holiday.smil; sleep 0.2; tail -c +100 holiday.smil) | $tool render -"));
    QCOMPARE(slow.out, golden(QStringLiteral("holiday.render")));
    const Outcome larger = smiltool({QStringLiteral("check"), QStringLiteral("-")}, message + ' ');
    QCOMPARE(larger.err, QStringLiteral("-: larger than 1 MiB\n"));
}

void Tool::debugLines()
{
    const Outcome outcome =
        smiltool({QStringLiteral("render"), QStringLiteral("--debug"), QStringLiteral("holiday.smil")});
    QCOMPARE(outcome.err,
             QStringLiteral("Begin to parse smil document.\n"
                            "Smil document have a head.\n"
                            "Smil document have a body.\n"));
    QCOMPARE(outcome.out, golden(QStringLiteral("holiday.render")));
}

void Tool::findings_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("lines");
    const auto row = [](const char *name, const char *body, const QString &lines, const QStringList &arguments = {}) {
        const QByteArray head = *body == '<' && body[1] == 's'
            ? ""
            : "<smil><head><layout><root-layout/><region id='A'/></layout></head>\n";
        QTest::newRow(name) << head + body << arguments << lines;
    };
    const QString repeated =
        QStringLiteral("-:2: not understood: dur of par \"1m\", \"2m\" (3 times) [unread-measure]\n");
    row("nothing", "<body><par><img src='a' region='A'/></par></body></smil>", QString());
    row("an unknown region, and one nothing plays in", "<body><par>\n<img src='a' region='B'/></par></body></smil>",
        QStringLiteral(
            "-:1: nothing plays in region: \"A\" [unused-region]\n-:3: no such region: \"B\" [unknown-region]\n"));
    row("no src", "<body><par><img region='A'/></par></body></smil>",
        QStringLiteral("-:2: no src: img [missing-src]\n"));
    row("said once", "<body><par dur='1m'><img src='a' region='A'/></par><par dur='2m'/><par dur='1m'/></body></smil>",
        repeated);
    row("ignored", "<body><par dur='1m'><img src='a' region='A'/></par></body></smil>", QString(),
        {QStringLiteral("--ignore"), QStringLiteral("unread-measure")});
    row("durations of phones",
        "<body><par dur='1ms'><img src='a' region='A'/></par>\n<par dur='1:30'/><par dur='5'/><par "
        "dur='5s'/></body></smil>",
        QStringLiteral("-:2: not understood without ClockDurations: dur of par \"1ms\", \"1:30\" (2 times) "
                       "[clock-duration]\n"
                       "-:3: pixels without ClockDurations: dur of par \"5\" [clock-duration]\n"));
    row("durations of phones ignored", "<body><par dur='1ms'><img src='a' region='A'/></par></body></smil>", QString(),
        {QStringLiteral("--ignore"), QStringLiteral("clock-duration")});
    row("duration of the body", "<body dur='1ms'><par><img src='a' region='A'/></par></body></smil>",
        QStringLiteral("-:2: not understood without ClockDurations: dur of body \"1ms\" [clock-duration]\n"
                       "-:2: lost when written back: dur of body \"1ms\" [lost-in-body]\n"));
    row("measures of the wrong kind",
        "<smil><head><layout><region id='A' width='5s' height='-1px' left='-1px'/></layout></head><body>\n"
        "<par dur='50%'><img src='a' region='A'/></par><par dur='-5s'/></body></smil>",
        QStringLiteral("-:1: negative: height of region \"-1px\" [wrong-measure]\n"
                       "-:1: a duration, not a length: width of region \"5s\" [wrong-measure]\n"
                       "-:2: a length, not a duration: dur of par \"50%\" [wrong-measure]\n"
                       "-:2: negative: dur of par \"-5s\" [wrong-measure]\n"));
    row("more durations than a line has room for",
        "<body><par dur='a'><img src='a' region='A'/></par><par dur='b'/><par dur='c'/><par dur='d'/></body></smil>",
        QStringLiteral("-:2: not understood: dur of par \"a\", \"b\", \"c\", ... (4 times) [unread-measure]\n"));
    row("no duration, and a long one",
        "<body><par dur='0s'><img src='a' region='A'/></par><par "
        "dur='0123456789012345678901234567890123456789x'/></body></smil>",
        QStringLiteral(
            "-:2: not understood: dur of par \"012345678901234567890123456789012345678\u2026\" [unread-measure]\n"));
    row("a size half of which a topLayout states",
        "<smil><head><layout><root-layout height='9'/><topLayout width='7'/></layout></head><body><par/></body></smil>",
        QStringLiteral("-:1: written back as the root-layout's size: topLayout [moved-top-size]\n"
                       "-:1: lost when written back without KeepRootSize: height of root-layout [lost-root-size]\n"));
    row("a size that a topLayout states",
        "<smil><head><layout><root-layout width='9'/><topLayout width='7'/></layout></head><body><par/></body></smil>",
        QStringLiteral("-:1: written back as the root-layout's size: topLayout [moved-top-size]\n"));
    row("what is lost ignored",
        "<smil><head><layout><root-layout width='9' x=''/><topLayout height='7'/></layout></head>"
        "<body dur='1s'><q/><par><img src='a'/><par/></par></body></smil>",
        QString(), {QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("regions without id, and with one id",
        "<smil><head><layout><region/><region/>\n<region id='A'/><region id='A'/></layout></head>"
        "<body><par><img src='a' region='A'/></par></body></smil>",
        QStringLiteral("-:1: region without id (2 times) [missing-id]\n"
                       "-:2: more than one region: \"A\" [duplicate-region]\n"));
    row("any letter case", "<body><PAR><IMG src='a' region='A'/></PAR></body></smil>", QString());
    row("an empty timeline", "<body/></smil>",
        QStringLiteral("-:1: nothing plays in region: \"A\" [unused-region]\n-:2: nothing plays [empty-timeline]\n"));
    row("another body", "<body><par><img src='a' region='A'/></par></body>\n<body/></smil>",
        QStringLiteral("-:3: lost when written back: another body in smil [lost-element]\n"));
}

void Tool::findings()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, arguments);
    QFETCH(QString, lines);
    const Outcome outcome = smiltool(QStringList{QStringLiteral("check"), QStringLiteral("-")} + arguments, body);
    QCOMPARE(outcome.out, lines);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, lines.isEmpty() ? 0 : 1);
}

/** The content of each element of the picture, between bars. */
static QString textsIn(const QString &picture)
{
    QDomDocument dom;
    dom.setContent(picture);
    const QDomNodeList texts = dom.elementsByTagName(QStringLiteral("text"));
    QStringList all;
    for (int i = 0; i < texts.size(); ++i) {
        all.append(texts.at(i).toElement().text());
    }
    return all.join(QStringLiteral(" | "));
}

void Tool::frames_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char *name, const char *body, const char *texts) {
        QTest::newRow(name) << QByteArray(body) << QString::fromUtf8(texts);
    };
    row("nothing", "", "Nothing plays.");
    row("an empty par", "<par/>", "1 · not stated | nothing plays");
    row("media in the body", "<img src='a' region='I'/><audio src='b'/>",
        "I | ▣ a | 1 · not stated | 2 · not stated | ♪ b");
    row("a seq of slides", "<seq dur='9s'><par dur='2s'><audio src='a'/></par><par><audio src='b'/></par></seq>",
        "1 · 2s | ♪ a | 2 · within 9s | ♪ b");
    row("sound beside slides",
        "<par><seq><par dur='1s'><text src='a' region='I'/></par><ref src='b'/></seq><audio src='c'/></par>",
        "I | ¶ a | 1 · 1s | ♪ c | 2 · not stated | ◆ b | ♪ c");
    row("slides beside fewer slides",
        "<par><seq><audio src='a'/><audio src='b'/></seq><seq><audio src='c'/><audio src='d'/><audio "
        "src='e'/></seq></par>",
        "1 · not stated | ♪ c | ♪ a | ♪ b | ♪ c + (♪ a → ♪ b) | 2 · not stated | ♪ d | ♪ a | ♪ b | ♪ d + (♪ a → ♪ b) | "
        "3 · not stated | ♪ e | ♪ a | ♪ b | ♪ e + (♪ a → ♪ b)");
    row("no such region, and one off the screen", "<par><img src='a' region='X'/><img src='b' region='off'/></par>",
        "1 · not stated | ▣ a, no region \"X\" | ▣ b, off screen in \"off\"");
    row("a name under another region", "<par><img src='a' region='I'/><text src='b' region='over'/></par>",
        "I | ▣ a | over | ¶ b | 1 · not stated");
    row("no line free", "<par><img src='a' region='low'/></par>", "1 · not stated | ▣ a in low");
    row("room for names alone", "<par><img src='a' region='two'/><img src='b' region='two'/></par>",
        "▣ a | ▣ b | 1 · not stated");
    row("too narrow", "<par><img src='twelve.letters' region='thin'/><img src='b' region='thin'/></par>",
        "thin | 1 · not stated | ▣ twelve.letters in thin | ▣ b in thin");
    row("sound in a region", "<par><audio src='a' region='I'/></par>", "1 · not stated | ♪ a");
    row("a long name without an extension", "<par><img src='a-name-that-is.longer-than-the-screen' region='I'/></par>",
        "I | ▣ a-name-that-is.longer-th… | 1 · not stated");
    row("a long name", "<par><img src='a-name-that-is-longer-than-the-screen.jpeg' region='I'/></par>",
        "I | ▣ a-name-that-is-long…jpeg | 1 · not stated");
    row("wide letters", "<par><img src='ЩЩЩЩЩЩЩЩЩЩЩЩ.jpg' region='I'/></par>", "I | ▣ ЩЩЩЩЩЩЩЩЩЩ…jpg | 1 · not stated");
    row("many lines", "<par><audio/><audio/><audio/><audio/><audio/><audio/><audio/></par>",
        "1 · not stated | ♪ ? | ♪ ? | ♪ ? | ♪ ? | ♪ ? | … 2 more");
}

void Tool::frames()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, texts);
    const QByteArray head =
        "<smil><head><layout><root-layout width='184' height='160'/><region id='I'/><region id='over' width='100'/>"
        "<region id='low' height='10'/><region id='two' height='30'/><region id='thin' width='40'/>"
        "<region id='off' left='184'/></layout></head><body>";
    const Outcome outcome =
        smiltool({QStringLiteral("storyboard"), QStringLiteral("-")}, head + body + "</body></smil>");
    QCOMPARE(textsIn(outcome.out), texts);
}

void Tool::noPictureIsTooLarge()
{
    const QByteArray message = "<smil><head/><body>" + QByteArray("<par/>").repeated(401) + "</body></smil>";
    const QString texts = textsIn(smiltool({QStringLiteral("storyboard"), QStringLiteral("-")}, message).out);
    QCOMPARE(texts.count(QLatin1String("nothing plays")), 400);
    QCOMPARE(texts.right(27), QStringLiteral("No more than 400 are drawn."));
    const auto board = [](const QByteArray &root) {
        return smiltool({QStringLiteral("storyboard"), QStringLiteral("-")},
                        "<smil><head><layout>" + root + "</layout></head><body><par/></body></smil>")
            .out;
    };
    QCOMPARE(board("<root-layout width='1e9' height='0'/>"), board("<root-layout/>"));
    const QTemporaryDir folder;
    const QString large =
        QStringLiteral("printf '\\211PNG\\r\\n\\032\\n' >$old; truncate -s 8388608 $old; $tool storyboard --parts '%1' "
                       "- <<EOF | grep -c '<image'\n"
                       "<smil><head><layout><region id='1'/><region id='2'/><region id='3'/><region id='4'/><region "
                       "id='5'/></layout></head>"
                       "<body><par><img src='old' region='1'/><img src='old' region='2'/><img src='old' region='3'/>"
                       "<img src='old' region='4'/><img src='old' region='5'/></par></body></smil>\nEOF\n");
    QCOMPARE(runScript(folder.path(), large.arg(folder.path())).out, QStringLiteral("4\n"));
    // No letter fits, and none is halved: the writer would stop there.
    const QString thin = QStringLiteral(
        "printf '\\360\\237\\230\\200' >$old; $tool storyboard --parts '%1' - <<EOF\n<smil><head><layout>"
        "<region id='1' width='9'/></layout></head><body><text src='old' region='1'/></body></smil>\nEOF\n");
    QCOMPARE(textsIn(runScript(folder.path(), thin.arg(folder.path())).out), QString::fromUtf8("😀 | 1 · not stated"));
    const QByteArray longName =
        "<smil><head/><body><par><img src='" + QByteArray(9999, 'a') + ".jpg'/></par></body></smil>";
    const QString picture = smiltool({QStringLiteral("storyboard"), QStringLiteral("-")}, longName).out;
    QVERIFY2(picture.size() < 5000, qPrintable(QString::number(picture.size())));
    QCOMPARE(textsIn(picture), QString::fromUtf8("1 · not stated | ▣ aaaaaaaaaaaaaaaaaaa…jpg"));
}

void Tool::regions_data()
{
    QTest::addColumn<QByteArray>("region");
    QTest::addColumn<QString>("area"); // x, y, width, height
    const auto row = [](const char *region, const char *area) {
        QTest::newRow(region) << QByteArray(region) << QString::fromLatin1(area);
    };
    row("", "0 0 184 92");
    row("left='10' right='20'", "10 0 154 92");
    row("right='20' width='50%'", "72 0 92 92");
    row("top='-10' height='30'", "0 0 184 20");
    row("bottom='-10' height='30'", "0 72 184 20");
    row("left='180' width='30' bottom='0.5in'", "180 0 4 44");
    row("left='36pt' width='2.54cm'", "48 0 96 92");
}

void Tool::regions()
{
    QFETCH(QByteArray, region);
    QFETCH(QString, area);
    const QByteArray message = "<smil><head><layout><root-layout width='184' height='92'/><region id='A' " + region
        + "/><region id='A' left='1'/></layout></head><body><par><img "
          "region='A'/></par><par/><par/><par/><par/></body></smil>";
    const Outcome outcome = smiltool({QStringLiteral("storyboard"), QStringLiteral("-")}, message);
    QDomDocument dom;
    QVERIFY(dom.setContent(outcome.out));
    const QDomElement drawn = dom.elementsByTagName(QStringLiteral("rect")).at(2).toElement();
    QStringList numbers;
    for (const char *const name : {"x", "y", "width", "height"}) {
        numbers.append(drawn.attribute(QLatin1String(name)));
    }
    QCOMPARE(numbers.join(QLatin1Char(' ')), area);
    const QDomElement fifth = dom.elementsByTagName(QStringLiteral("g")).at(4).toElement();
    QVERIFY2(fifth.attribute(QStringLiteral("transform")).startsWith(QLatin1String("translate(16 1")),
             qPrintable(fifth.attribute(QStringLiteral("transform"))));
}

/** "dur of par" for each attribute of an element and of those in it, in order. */
static void listAttributes(const QDomElement &element, QStringList &all)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        all.append(attributes.item(i).nodeName() + QLatin1String(" of ") + element.tagName());
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        listAttributes(child, all);
    }
    all.sort();
}

void Tool::toolKnowsWhatTheLibraryKnows()
{
    QByteArray attributes;
    for (const char *const name :
         {"id",         "title",      "class",         "name",  "content", "width",     "height",
          "top",        "bottom",     "left",          "right", "fit",     "dur",       "src",
          "region",     "begin",      "end",           "alt",   "type",    "z-index",   "backgroundColor",
          "soundLevel", "longdesc",   "repeatCount",   "fill",  "author",  "copyright", "regionName",
          "endsync",    "clip-begin", "system-bitrate"}) {
        attributes += QByteArray(" ") + name + "='1s'";
    }
    QByteArray message;
    for (const char *const tag :
         {"smil", "head",  "meta/", "layout", "root-layout/", "region/", "/layout", "/head", "body",  "seq",
          "par",  "text/", "img/",  "audio/", "video/",       "ref/",    "/par",    "/seq",  "/body", "/smil"}) {
        const QByteArray name = QByteArray(tag).replace('/', "");
        message += *tag == '/' ? QByteArray("<") + tag + ">"
                               : '<' + name + attributes + (QByteArray(tag).endsWith('/') ? "/>" : ">");
    }
    QDomDocument given;
    QVERIFY(given.setContent(message));
    SmilParser parser(message);
    SmilParser writer(parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize));
    QStringList kept;
    listAttributes(writer.getContent().documentElement(), kept);

    QDomDocument rendered;
    QVERIFY(rendered.setContent(
        smiltool({QStringLiteral("render"), QStringLiteral("--keep"), QStringLiteral("-")}, message).out));
    QStringList printed;
    listAttributes(rendered.documentElement(), printed);
    QCOMPARE(printed, kept);

    QStringList lost;
    listAttributes(given.documentElement(), lost);
    for (const QString &attribute : std::as_const(kept)) {
        lost.removeOne(attribute);
    }
    const QString found = smiltool({QStringLiteral("check"), QStringLiteral("-")}, message).out;
    static const QRegularExpression line(QStringLiteral("lost when written back: (\\S+ of \\S+)"));
    QStringList told;
    auto matches = line.globalMatch(found);
    while (matches.hasNext()) {
        told.append(matches.next().captured(1));
    }
    told.sort();
    QCOMPARE(told, lost);
}

void Tool::partsAreDrawn_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QString>("texts");
    const auto row = [](const char *name, const QByteArray &part, const char *texts) {
        QTest::newRow(name) << part << QString::fromUtf8(texts);
    };
    row("a text", "Hel\tlo\r\n<b>\xe2\x80\xae", "Hel lo | <b> | 1 · not stated");
    row("words", QByteArray("It rains all day. ").repeated(200), "It rains all | day. It rains… | 1 · not stated");
    row("one word", QByteArray("\xe6\x97\xa5").repeated(2000), "日日日日日日日日 | 日日日日日日日… | 1 · not stated");
    row("a text that begins as a picture does", "P3 is what I need", "P3 is what I | need | 1 · not stated");
    row("to the left", "\xd7\xa9\xd7\x9c", "של | 1 · not stated");
    row("a character that the limit cuts", "a" + QByteArray("\xe6\x97\xa5").repeated(6000),
        "a日日日日日日日 | 日日日日日日日… | 1 · not stated");
    row("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "1 · not stated");
    row("a sound", "#!AMR\n\x3c\x91", "I | ▣ part | 1 · not stated");
}

void Tool::partsAreDrawn()
{
    QFETCH(QByteArray, part);
    QFETCH(QString, texts);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("part")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(part) == part.size() && file.flush());
    const Outcome outcome =
        smiltool({QStringLiteral("storyboard"), QStringLiteral("--parts"), folder.path(), QStringLiteral("-")},
                 "<smil><head><layout><root-layout width='184' height='160'/>"
                 "<region id='I' width='100' height='30'/></layout></head>"
                 "<body><par><img src='part' region='I'/></par></body></smil>");
    QCOMPARE(textsIn(outcome.out), texts);
    QCOMPARE(outcome.out.count(QLatin1String("<text x=\"96\" y=\"11.25\" class=\"rtl\">")),
             texts.startsWith(QStringLiteral("\u05e9")) ? 1 : 0);
    QCOMPARE(outcome.out.count(QLatin1String("href=\"data:image/png;base64,iVBORw0K")),
             part.startsWith("\x89") ? 1 : 0);
}

void Tool::picturesFitTheirRegion()
{
    QByteArray regions;
    QByteArray media;
    for (const char *const fit : {"meet", "slice", "fill", "hidden", "scroll", ""}) {
        regions += QByteArray("<region id='") + fit + "-' fit='" + fit + "' width='50%'/>";
        media += QByteArray("<img src='beach.jpg' region='") + fit + "-'/>";
    }
    const QByteArray message = "<smil><head><layout><root-layout width='92' height='50'/>" + regions
        + "</layout></head><body><par>" + media + "</par><par>" + media + "</par></body></smil>";
    const Outcome outcome = smiltool(
        {QStringLiteral("storyboard"), QStringLiteral("--parts"), QStringLiteral("holiday"), QStringLiteral("-")},
        message);
    QDomDocument dom;
    QVERIFY(dom.setContent(outcome.out));
    const QDomNodeList images = dom.elementsByTagName(QStringLiteral("image"));
    QStringList drawn;
    for (int i = 0; i < images.size(); ++i) {
        const QDomElement image = images.at(i).toElement();
        drawn.append(image.attribute(QStringLiteral("width")) + QLatin1Char(' ')
                     + image.attribute(QStringLiteral("preserveAspectRatio"))
                     + image.attribute(QStringLiteral("transform")));
    }
    QCOMPARE(drawn.join(QStringLiteral(", ")),
             QStringLiteral("92 xMinYMin meet, 92 xMinYMin slice, 92 none,  scale(2),  scale(2),  scale(2)"));
    // The second frame has no data of its own.
    QCOMPARE(dom.elementsByTagName(QStringLiteral("use")).size(), 6);
}

void Tool::partsAreChecked()
{
    const Outcome outcome =
        smiltool({QStringLiteral("check"), QStringLiteral("--parts"), QStringLiteral("holiday"), QStringLiteral("-")},
                 "<smil><head/><body>\n<par><img src='beach.txt'/>\n<text src='cid:HARBOUR.jpg'/></par>\n"
                 "<par><ref src='beach.jpg'/><img src='../holiday.smil'/></par></body></smil>");
    QCOMPARE(outcome.out,
             QStringLiteral("-:1: nothing refers to the part \"harbour.txt\" [unused-part]\n"
                            "-:2: the part of img is text/plain: \"beach.txt\" [wrong-kind]\n"
                            "-:3: the part of text is image/jpeg: \"cid:HARBOUR.jpg\" [wrong-kind]\n"
                            "-:4: no such part: src of img \"../holiday.smil\" [missing-part]\n"));
    const QTemporaryDir folder;
    const QString script = QStringLiteral(
        "truncate -s 8388609 $old; $tool storyboard - --parts '%1' -o $board <<EOF\n"
        "<smil><head><layout><region id='A'/></layout></head><body><img src='old' region='A'/></body></smil>\n"
        "EOF\n");
    const QString copied = QStringLiteral("cp holiday/* holiday.smil '%1'; rm $old; $tool check --ignore missing-part "
                                          "--ignore lost --ignore clock-duration - --parts '%1' <holiday.smil");
    QCOMPARE(runScript(folder.path(), copied.arg(folder.path())).out, QString());
    const Outcome large = runScript(folder.path(), script.arg(folder.path()));
    QVERIFY2(large.err.endsWith(QLatin1String("/old: is larger than 8 MiB\n")), qPrintable(large.err));
    QCOMPARE(large.status, 1);
}

void Tool::messageAsItIsSent()
{
    QFile file(QStringLiteral(EXAMPLES_DIR "/../fuzz/corpus-message/related.mms"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray message = file.readAll();
    QCOMPARE(smiltool({QStringLiteral("show"), QStringLiteral("-")}, message).out,
             QString::fromUtf8("-\n"
                               "  from \"+15550100\"\n"
                               "  to \"anna@example.org\"\n"
                               "  subject \"été\"\n"
                               "  date 2003-02-16T03:48:33Z\n"
                               "  part \"start\", application/smil, 87 bytes\n"
                               "  part \"photo.png\", image/png, 16 bytes\n"
                               "  part \"said.txt\", text/plain, 5 bytes\n"
                               "  head\n"
                               "  layout\n"
                               "    root-layout: no size\n"
                               "  body\n"
                               "    par, no duration\n"
                               "      img \"cid:one\"\n"
                               "      text \"hello.txt\"\n"));
    QCOMPARE(smiltool({QStringLiteral("check"), QStringLiteral("-")}, message).out, QString());
    const QByteArray smil = QByteArray("<smil><head/><body/></smil>").leftJustified(1024 * 1024 + 1, ' ');
    const QByteArray headers = QByteArray("\x8C\x80\x84\xB3\x01\x11\xC0\x80\x01") + "application/smil";
    QCOMPARE(smiltool({QStringLiteral("show"), QStringLiteral("-")}, headers + '\0' + smil).err,
             QStringLiteral("-: the SMIL part is larger than 1 MiB\n"));
    QCOMPARE(smiltool({QStringLiteral("show"), QStringLiteral("-")}, headers.leftJustified(8 * 1024 * 1024 + 1)).err,
             QStringLiteral("-: larger than 8 MiB\n"));
    const QString longSubject =
        smiltool({QStringLiteral("show"), QStringLiteral("-")},
                 QByteArray("\x8C\x84\x96") + QByteArray(70000, 'a') + '\0' + message.mid(message.indexOf("\x84\x1C")))
            .out;
    QVERIFY2(longSubject.contains(QString(65535, QLatin1Char('a')) + QStringLiteral("\u2026\"\n")),
             qPrintable(longSubject.right(200)));
    const Outcome cut = smiltool({QStringLiteral("show"), QStringLiteral("-")}, message.chopped(1));
    QCOMPARE(cut.err,
             QStringLiteral("-: is cut off in its parts (number 3 of 3), or has a length there that is wrong\n"));
    QCOMPARE(cut.status, 1);
}

void Tool::drawsTo_data()
{
    QTest::addColumn<QString>("script"); // $board is a file that is not there, $old one that is
    QTest::newRow("a new file") << QStringLiteral("$tool storyboard nested.smil -o $board && cat $board");
    QTest::newRow("a new file, from a pipe")
        << QStringLiteral("cat nested.smil | $tool storyboard - -o $board && cat $board");
    QTest::newRow("another file") << QStringLiteral("$tool storyboard nested.smil --output $old && cat $old");
    QTest::newRow("standard output") << QStringLiteral("$tool storyboard nested.smil -o -");
    QTest::newRow("a descriptor") << QStringLiteral("$tool storyboard nested.smil -o /dev/stdout | cat");
    QTest::newRow("a descriptor of a file")
        << QStringLiteral("(echo first; $tool storyboard nested.smil -o /dev/stdout) >$board && "
                          "grep -qx first $board && tail -n +2 $board");
    QTest::newRow("a descriptor between other output") << QStringLiteral(
        "(printf %20s; $tool storyboard nested.smil -o /dev/fd/3 3>&1; echo) >$board && tail -c +21 $board");
    QTest::newRow("a pipe") << QStringLiteral(
        "mkfifo $board && (cat $board & $tool storyboard nested.smil -o $board; wait) && test -p $board");
}

void Tool::drawsTo()
{
    QFETCH(QString, script);
    const QTemporaryDir folder;
    const Outcome outcome = runScript(folder.path(), script);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(textsIn(outcome.out), textsIn(golden(QStringLiteral("nested.storyboard"))));
    QCOMPARE(outcome.status, 0);
}

void Tool::neverDrawsOverTheMessage()
{
    const QTemporaryDir folder;
    const QString copy = QStringLiteral("cp nested.smil $old; ln $old $board; $tool storyboard ");
    for (const QString &rest :
         {QStringLiteral("$old -o $old"), QStringLiteral("$old -o $board"), QStringLiteral("- -o $old <$old")}) {
        const Outcome outcome = runScript(folder.path(), copy + rest);
        QVERIFY2(outcome.err.endsWith(QLatin1String(": is the message itself\n")), qPrintable(rest + outcome.err));
        QCOMPARE(outcome.status, 1);
        QCOMPARE(readFile(folder.filePath(QStringLiteral("old"))),
                 readFile(QStringLiteral(EXAMPLES_DIR "/nested.smil")));
        QFile::remove(folder.filePath(QStringLiteral("board")));
    }
}

void Tool::neverDrawsOverAPart()
{
    const QTemporaryDir folder;
    const QString script = QStringLiteral(
        "cp holiday.smil holiday/* '%1'; parts=$PWD/holiday; cd '%1'; $tool storyboard holiday.smil --parts . "
        "-o beach.jpg; echo $?; cmp beach.jpg \"$parts/beach.jpg\"; $tool storyboard holiday.smil --parts . -o $old");
    const Outcome outcome = runScript(folder.path(), script.arg(folder.path()));
    QCOMPARE(outcome.err, QStringLiteral("beach.jpg: is a part of the message\n"));
    QCOMPARE(outcome.out, QStringLiteral("1\n"));
    QCOMPARE(outcome.status, 0);
}

void Tool::manualAndCompletionNameEveryFinding()
{
    const QString help = smiltool({QStringLiteral("check"), QStringLiteral("--help")}).out.simplified();
    const QString list = help.section(QStringLiteral("The names: "), 1).section(QStringLiteral(" --debug"), 0, 0);
    const QStringList names = list.split(QStringLiteral(", "));
    QCOMPARE(names.last(), QStringLiteral("changed-order"));
    const QString manual = inDocs("man/smiltool.1");
    for (const QString &name : names) {
        QVERIFY2(manual.contains(QStringLiteral(".TP\n.B ") + name + QLatin1Char('\n')), qPrintable(name));
    }
    const QString completion =
        QStringLiteral(". ../completions/smiltool; COMP_WORDS=(smiltool check --ignore ''); COMP_CWORD=3; "
                       "_smiltool; echo ${COMPREPLY[@]}");
    const Outcome completed = run(QStringLiteral("bash"), {QStringLiteral("-c"), completion});
    QCOMPARE(completed.out.simplified().split(QLatin1Char(' ')), names);
}

void Tool::examples()
{
    Outcome composed;
    for (const QStringList &way : {QStringList(QStringLiteral("dom")), QStringList()}) {
        composed = run(QStringLiteral(EXAMPLES_BIN_DIR "/compose"), way);
        QCOMPARE(composed.status, 0);
        QCOMPARE(composed.out.contains(QLatin1String("xml:lang")), !way.isEmpty());
        const Outcome rendered = smiltool({QStringLiteral("render"), QStringLiteral("-")}, composed.out.toUtf8());
        // The root layout's size is written, and not written back.
        QCOMPARE(rendered.out, golden(QStringLiteral("compose.render")));
    }
    const QString read = QStringLiteral(EXAMPLES_BIN_DIR "/read");
    const Outcome listed = run(read, {}, composed.out.toUtf8());
    QCOMPARE(listed.err, golden(QStringLiteral("read.err")));
    QCOMPARE(listed.status, 0);
    const Outcome ofPhone = run(read, {}, "<smil><head/><body><par dur='5000ms'/></body></smil>");
    QCOMPARE(ofPhone.err, QStringLiteral("slide, \"5s\"\n"));
    QCOMPARE(run(read, {}, "<smil><head/></smil>").status, 1);
    const QStringList parts = {QStringLiteral("beach.jpg"), QStringLiteral("HARBOUR.JPG"), QStringLiteral("card.vcf")};
    const Outcome shown = run(QStringLiteral(EXAMPLES_BIN_DIR "/show"), parts,
                              readFile(QStringLiteral(EXAMPLES_DIR "/holiday.smil")).toUtf8());
    QCOMPARE(shown.err, golden(QStringLiteral("show.err")));

    const Outcome sent = run(QStringLiteral(EXAMPLES_BIN_DIR "/send"), {});
    QCOMPARE(sent.err, QStringLiteral("beach___boats.jpg, hello.txt, harbour.jpg, waves.amr\n"));
    QCOMPARE(run(read, {}, sent.out.toUtf8()).err.count(QStringLiteral("slide, \"8s\"\n")), 1);

    const QString readme = readFile(QStringLiteral(EXAMPLES_DIR "/../README.md"));
    static const QRegularExpression snippet(QStringLiteral("//! \\[(\\w+)\\]\n(.*)\n *//! \\[\\1\\]\n"),
                                            QRegularExpression::DotMatchesEverythingOption);
    for (const char *const file : {"/compose.cpp", "/read.cpp", "/send.cpp", "/show.cpp"}) {
        auto snippets = snippet.globalMatch(readFile(QStringLiteral(EXAMPLES_DIR) + QLatin1String(file)));
        QVERIFY(snippets.hasNext());
        while (snippets.hasNext()) {
            QString code = snippets.next().captured(2);
            static const QRegularExpression indentation(QStringLiteral("^    "), QRegularExpression::MultilineOption);
            if (code.startsWith(QLatin1String("    "))) {
                code.remove(indentation);
            }
            QVERIFY2(readme.contains(code), qPrintable(code));
        }
    }
}

QTEST_GUILESS_MAIN(Tool)
#include "tool.moc"
