// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

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

static QString readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("cannot read ") + name;
}

static QString golden(const QString &name)
{
    return readFile(QStringLiteral(GOLDEN_DIR "/") + name);
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
    void otherFilesAreHandled();
    void textFromStrangersIsEscaped();
    void lostOutputIsAnError();
    void debugLines();
    void findings_data();
    void findings();
    void drawsToFile();
    void examples();
};

void Tool::samples_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("sample");
    for (const char *const command : {"show", "render", "check", "storyboard"}) {
        for (const char *const sample : {"holiday", "greeting", "nested"}) {
            QTest::addRow("%s %s", command, sample) << QString::fromLatin1(command) << QString::fromLatin1(sample);
        }
    }
    QTest::newRow("show --plain holiday") << QStringLiteral("show --plain") << QStringLiteral("holiday");
    QTest::newRow("render --keep holiday") << QStringLiteral("render --keep") << QStringLiteral("holiday");
}

void Tool::samples()
{
    QFETCH(QString, command);
    QFETCH(QString, sample);
    const QStringList words = command.split(QLatin1Char(' '));
    const Outcome outcome = smiltool(words + QStringList(sample + QStringLiteral(".smil")));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, golden(sample + QLatin1Char('.') + words.join(QString())));
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
    QTest::newRow("no smil") << input << QByteArray("<html/>") << QStringLiteral("-: Fail to find SMIL document!");
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

void Tool::badUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no command") << QStringList();
    QTest::newRow("unknown command") << QStringList{QStringLiteral("play"), QStringLiteral("holiday.smil")};
    QTest::newRow("no file") << QStringList{QStringLiteral("show")};
    QTest::newRow("unknown option") << QStringList{QStringLiteral("show"), QStringLiteral("--loud"),
                                                   QStringLiteral("-")};
    QTest::newRow("option of another command")
        << QStringList{QStringLiteral("show"), QStringLiteral("--keep"), QStringLiteral("-")};
}

void Tool::badUsage()
{
    QFETCH(QStringList, arguments);
    const Outcome outcome = smiltool(arguments);
    QCOMPARE(outcome.out, QString());
    QVERIFY(outcome.err.startsWith(QLatin1String("smiltool: ")));
    QCOMPARE(outcome.status, 2);
}

void Tool::otherFilesAreHandled()
{
    const QStringList files{QStringLiteral("greeting.smil"), QStringLiteral("absent.smil"),
                            QStringLiteral("nested.smil")};
    const Outcome outcome = smiltool(QStringList{QStringLiteral("show")} + files);
    QCOMPARE(outcome.out, golden(QStringLiteral("greeting.show")) + golden(QStringLiteral("nested.show")));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(outcome.status, 1);
}

void Tool::textFromStrangersIsEscaped()
{
    const QByteArray input = "<smil><head title='a\"\\&#x9b;&#x202e;b'/><body/></smil>";
    const Outcome shown = smiltool({QStringLiteral("show"), QStringLiteral("-")}, input);
    QVERIFY2(shown.out.contains(QLatin1String("title \"a\\\"\\\\\\u{009b}\\u{202e}b\"\n")), qPrintable(shown.out));
    const Outcome rendered = smiltool({QStringLiteral("render"), QStringLiteral("-")}, input);
    QVERIFY2(rendered.out.contains(QLatin1String("=\"a&quot;\\&#x9b;&#x202e;b\"")), qPrintable(rendered.out));
}

void Tool::lostOutputIsAnError()
{
    const QStringList script{QStringLiteral("-c"), QStringLiteral(SMILTOOL " show holiday.smil > /dev/full")};
    const Outcome outcome = run(QStringLiteral("/bin/sh"), script);
    QVERIFY2(outcome.err.startsWith(QLatin1String("smiltool: standard output: ")), qPrintable(outcome.err));
    QCOMPARE(outcome.status, 1);
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
        QTest::newRow(name) << QByteArray("<smil><head><layout><root-layout/><region id='A'/></layout></head>\n") + body
                            << arguments << lines;
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

void Tool::drawsToFile()
{
    const QTemporaryDir folder;
    const QString message = folder.filePath(QStringLiteral("a.smil"));
    QVERIFY(QFile::copy(QStringLiteral(EXAMPLES_DIR "/nested.smil"), message));
    const QString before = readFile(message);
    const QString board = folder.filePath(QStringLiteral("a.svg"));
    QCOMPARE(smiltool({QStringLiteral("storyboard"), message, QStringLiteral("-o"), board}).status, 0);
    QDomDocument dom;
    QVERIFY(dom.setContent(readFile(board)));
    QCOMPARE(dom.documentElement().tagName(), QStringLiteral("svg"));
    const QString holiday = QStringLiteral("holiday.smil");
    const QString plain = smiltool({QStringLiteral("storyboard"), QStringLiteral("--plain"), holiday}).out;
    QVERIFY2(plain.contains(QLatin1String("2 (not stated)")), qPrintable(plain));
    QCOMPARE(smiltool({QStringLiteral("storyboard"), message, QStringLiteral("-o"), message}).status, 1);
    QCOMPARE(readFile(message), before);
    QCOMPARE(readFile(QStringLiteral(EXAMPLES_DIR "/../docs/storyboard.svg")),
             golden(QStringLiteral("holiday.storyboard")));

    const QString manual = readFile(QStringLiteral(EXAMPLES_DIR "/../docs/smiltool.1"));
    const QString help = smiltool({QStringLiteral("check"), QStringLiteral("--help")}).out;
    static const QRegularExpression finding(QStringLiteral("\\b[a-z]+(-[a-z]+)+,"));
    auto names = finding.globalMatch(help);
    QVERIFY(names.hasNext());
    while (names.hasNext()) {
        const QString name = names.next().captured().chopped(1);
        QVERIFY2(manual.contains(QStringLiteral(".TP\n.B ") + name + QLatin1Char('\n')), qPrintable(name));
    }
}

void Tool::examples()
{
    const Outcome composed = run(QStringLiteral(EXAMPLES_BIN_DIR "/compose"), {});
    QCOMPARE(composed.status, 0);
    const Outcome rendered = smiltool({QStringLiteral("render"), QStringLiteral("-")}, composed.out.toUtf8());
    // The root layout's size is written, and not written back.
    QCOMPARE(rendered.out, golden(QStringLiteral("compose.render")));
    const QString read = QStringLiteral(EXAMPLES_BIN_DIR "/read");
    const Outcome listed = run(read, {}, composed.out.toUtf8());
    QCOMPARE(listed.err, golden(QStringLiteral("read.err")));
    QCOMPARE(listed.status, 0);
    const Outcome ofPhone = run(read, {}, "<smil><head/><body><par dur='5000ms'/></body></smil>");
    QCOMPARE(ofPhone.err, QStringLiteral("slide, \"5s\"\n"));
    QCOMPARE(run(read, {}, "<smil><head/></smil>").status, 1);

    const QString readme = readFile(QStringLiteral(EXAMPLES_DIR "/../README.md"));
    static const QRegularExpression snippet(QStringLiteral("//! \\[(\\w+)\\]\n(.*)\n *//! \\[\\1\\]\n"),
                                            QRegularExpression::DotMatchesEverythingOption);
    for (const QString &file : {QStringLiteral("/compose.cpp"), QStringLiteral("/read.cpp")}) {
        auto snippets = snippet.globalMatch(readFile(QStringLiteral(EXAMPLES_DIR) + file));
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
