// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "smiltool.h"

class Tool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void samples_data();
    void samples();
    void problems_data() { addCases("problems.txt"); }
    void problems();
    void badUsage_data() { addCases("usage.txt"); }
    void badUsage();
    void help();
    void otherFilesAreHandled();
    void textFromStrangersIsEscaped();
    void lostOutputIsAnError_data() { addCases("lostoutput.txt"); }
    void lostOutputIsAnError();
    void inputIsReadToItsEnd();
    void messageAsItIsSent();
    void completionKnowsEveryOption();
    void examples();
    void codeOnPages();
};

void Tool::samples_data()
{
    QTest::addColumn<QStringList>("words");
    for (const char *const words :
         {"show holiday", "show greeting", "show nested", "render holiday", "render greeting", "render nested",
          "check holiday", "check greeting", "check nested", "storyboard --parts=holiday holiday",
          "storyboard greeting", "storyboard nested", "render --bare holiday"}) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' '));
    }
}

void Tool::samples()
{
    QFETCH(QStringList, words);
    const QString sample = words.takeLast();
    const Outcome outcome = smiltool(words + QStringList(sample + QStringLiteral(".smil")));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out,
             words.size() > 1 && words.first() == QLatin1String("storyboard")
                 ? inDocs("figures/storyboard.svg")
                 : golden(sample + QLatin1Char('.') + words.join(QString())));
    QCOMPARE(outcome.status, words.first() == QLatin1String("check") && !outcome.out.isEmpty() ? 1 : 0);
}

void Tool::problems()
{
    QFETCH(QString, file);
    QFETCH(QString, input);
    QFETCH(QString, line);
    const Outcome outcome = smiltool({QStringLiteral("show"), file}, input.toLatin1());
    QVERIFY(outcome.err.endsWith(QLatin1Char('\n')));
    const QRegularExpression expected(QRegularExpression::anchoredPattern(line));
    QVERIFY2(expected.match(outcome.err.chopped(1)).hasMatch(), qPrintable(outcome.err));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 1);
}

/** The error ends with how to get the help of the command, if that is known. */
void Tool::badUsage()
{
    QFETCH(QString, problem);
    QStringList words = QString::fromLatin1(QTest::currentDataTag()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const int command = words.value(0) == QLatin1String("--ignore") ? 2 : 0;
    const bool isKnown = !words.isEmpty() && !problem.startsWith(QLatin1String("unknown"));
    const QString help = isKnown ? QLatin1Char(' ') + words.at(command) : QString();
    words.replaceInStrings(QStringLiteral("''"), QString());
    const Outcome outcome = smiltool(words);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QStringLiteral("smiltool: %1\nTry 'smiltool%2 --help'.\n").arg(problem, help));
    QCOMPARE(outcome.status, 2);
}

void Tool::help()
{
    for (const char *const arguments : {"help", "--help", "help help", "help check", "check --help", "--help check"}) {
        const Outcome outcome = smiltool(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        const bool ofCheck = QByteArray(arguments).contains("check");
        QVERIFY2(outcome.out.contains(QLatin1String("--ignore")) == ofCheck, arguments);
        QVERIFY2(outcome.out.contains(QLatin1String("  storyboard")) != ofCheck, arguments);
        QVERIFY2(outcome.status == 0 && outcome.err.isEmpty() && outcome.out.endsWith(QLatin1String(".\n")), arguments);
    }
    QVERIFY(!smiltool("help extract").out.contains(QLatin1String("SMIL part")));
}

void Tool::otherFilesAreHandled()
{
    const Outcome outcome = smiltool("show greeting.smil absent.smil - nested.smil", "<smil/>");
    QCOMPARE(outcome.out, golden(QStringLiteral("greeting.show")) + golden(QStringLiteral("nested.show")));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 2);
    QCOMPARE(outcome.status, 1);
}

void Tool::textFromStrangersIsEscaped()
{
    // Joiners belong into words; nowhere else.
    const QByteArray input = "<smil><head title='a\"\\&#x9b;&#x202e;&#x2028;&#x2029;\xf0\x9f\xbf\xbe\xf0\x9f\x98\x80"
                             "x&#x200d;y&#x200c; &#x200d;z&#x200d;&#x200d;'/><body/></smil>";
    const QString shown = smiltool("show -", input).out;
    const QString title = QString::fromUtf8("title \"a\\\"\\\\\\u{009b}\\u{202e}\\u{2028}\\u{2029}\\u{1fffe}😀"
                                            "x\u200dy\\u{200c} \\u{200d}z\\u{200d}\\u{200d}\"\n");
    QVERIFY2(shown.contains(title), qPrintable(shown));
    const QString rendered = smiltool("render -", input).out;
    QVERIFY2(rendered.contains(QLatin1String("=\"a&quot;\\&#x9b;&#x202e;&#x2028;")), qPrintable(rendered));
}

/** On a disk or a device that takes nothing, what is there stays as it is, and nothing half is left. */
void Tool::lostOutputIsAnError()
{
    QFETCH(QString, script);
    const QTemporaryDir folder;
    Outcome outcome = runScript(folder.path(), script);
    QTEST(outcome.err.replace(folder.path(), QLatin1String("FOLDER")), "problem");
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 1);
    QCOMPARE(readFile(folder.filePath(QStringLiteral("old"))), QStringLiteral("old\n"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("old")));
}

void Tool::inputIsReadToItsEnd()
{
    const QByteArray message = QByteArray("<smil><head/><body/></smil>").leftJustified(1024 * 1024, ' ');
    const Outcome largest = smiltool("check -", message);
    QCOMPARE(largest.out, QStringLiteral("-:1: nothing plays [empty-timeline]\n"));
    const QTemporaryDir folder;
    const Outcome slow =
        runScript(folder.path(),
                  QStringLiteral("(head -c 99 holiday.smil; sleep 0.2; tail -c +100 holiday.smil) | $tool render -"));
    QCOMPARE(slow.out, golden(QStringLiteral("holiday.render")));
    const Outcome larger = smiltool("check -", message + ' ');
    QCOMPARE(larger.err, QStringLiteral("-: larger than 1 MiB\n"));
}

void Tool::messageAsItIsSent()
{
    QFile file(QStringLiteral(EXAMPLES_DIR "/../fuzz/corpus-message/related.mms"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray message = file.readAll();
    QCOMPARE(smiltool("show -", message).out, golden(QStringLiteral("related.show")));
    QCOMPARE(smiltool("check -", message).out, QString());
    const QByteArray numbered = QByteArray(message).replace("photo.png", "ph%1%3.pn");
    QVERIFY(smiltool("show -", numbered).out.contains(QLatin1String("part \"ph%1%3.pn\", image/png, 16 bytes\n")));
    const QByteArray smil = QByteArray("<smil><head/><body/></smil>").leftJustified(1024 * 1024 + 1, ' ');
    const QByteArray headers = QByteArray("\x8C\x80\x84\xB3\x01\x11\xC0\x80\x01") + "application/smil";
    QCOMPARE(smiltool("show -", headers + '\0' + smil).err, QStringLiteral("-: the SMIL part is larger than 1 MiB\n"));
    QCOMPARE(smiltool("show -", headers.leftJustified(8 * 1024 * 1024 + 1)).err,
             QStringLiteral("-: larger than 8 MiB\n"));
    const QByteArray longSubject =
        QByteArray("\x8C\x84\x96") + QByteArray(70000, 'a') + '\0' + message.mid(message.indexOf("\x84\x1C"));
    for (const char *const words : {"show -", "show --json -"}) {
        const QString shown = smiltool(words, longSubject).out;
        QVERIFY2(shown.contains(QString(65535, QLatin1Char('a')) + QStringLiteral("\u2026\"")),
                 qPrintable(shown.right(200)));
    }
    const Outcome cut = smiltool("show -", message.chopped(1));
    QCOMPARE(cut.err,
             QStringLiteral("-: is cut off in its parts (number 3 of 3), or has a length there that is wrong\n"));
    QCOMPARE(cut.status, 1);
}

void Tool::completionKnowsEveryOption()
{
    for (const char *const command : {"show", "render", "storyboard", "check", "compose", "extract"}) {
        const QString help = smiltool({QLatin1String(command), QStringLiteral("--help")}).out;
        static const QRegularExpression option(QStringLiteral("^  .*(--[a-z]+)"), QRegularExpression::MultilineOption);
        QStringList options;
        for (auto found = option.globalMatch(help); found.hasNext();) {
            options.append(found.next().captured(1));
        }
        options.sort();
        const QString script = QStringLiteral(". ../completions/smiltool; COMP_WORDS=(smiltool %1 -); COMP_CWORD=2; "
                                              "_smiltool; echo ${COMPREPLY[@]} | tr ' ' '\\n' | sort | xargs");
        const Outcome completed =
            run(QStringLiteral("bash"), {QStringLiteral("-c"), script.arg(QLatin1String(command))});
        QCOMPARE(completed.out.trimmed(), options.join(QLatin1Char(' ')));
    }
}

void Tool::examples()
{
    const auto example = [](const char *name, const QStringList &arguments, const QByteArray &input = QByteArray()) {
        return run(QStringLiteral(EXAMPLES_BIN_DIR "/") + QLatin1String(name), arguments, input);
    };
    Outcome composed;
    for (const QStringList &way : {QStringList(QStringLiteral("dom")), QStringList()}) {
        composed = example("compose", way);
        QCOMPARE(composed.status, 0);
        QCOMPARE(composed.out.contains(QLatin1String("xml:lang")), !way.isEmpty());
        const Outcome rendered = smiltool("render -", composed.out.toUtf8());
        QCOMPARE(rendered.out, golden(QStringLiteral("compose.render")));
    }
    const Outcome listed = example("read", {}, composed.out.toUtf8());
    QCOMPARE(listed.err, golden(QStringLiteral("read.err")));
    QCOMPARE(listed.status, 0);
    QCOMPARE(example("read", {}, "<smil><head/><body><par dur='5000ms'/></body></smil>").err,
             QStringLiteral("slide, \"5s\"\n"));
    QCOMPARE(example("read", {}, "<smil><head/></smil>").status, 1);
    const QStringList parts = {QStringLiteral("beach.jpg"), QStringLiteral("HARBOUR.JPG"), QStringLiteral("card.vcf")};
    const QString holiday = QStringLiteral(EXAMPLES_DIR "/holiday.smil");
    QCOMPARE(example("show", parts, readFile(holiday).toUtf8()).err, golden(QStringLiteral("show.err")));
    QCOMPARE(example("first", {holiday}).err, QStringLiteral("\"\" has 3 slides\n"));

    const Outcome sent = example("send", {});
    QCOMPARE(sent.err, QStringLiteral("beach___boats.jpg, hello.txt, harbour.jpg, waves.amr\n"));
    QCOMPARE(example("read", {}, sent.out.toUtf8()).err.count(QStringLiteral("slide, \"8s\"\n")), 1);

    QVERIFY(
        example("forward", {}, sent.out.toUtf8()).out.contains(QLatin1String("title=\"Fwd: Two days at the sea\"")));
    const Outcome forwarded =
        example("forward", {QStringLiteral("a b.jpg"), QStringLiteral("card.vcf"), QStringLiteral("A_b.jpg")});
    QCOMPARE(forwarded.err, QStringLiteral("a_b.jpg, card.vcf, A_b-2.jpg\n"));
    QCOMPARE(forwarded.out.count(QLatin1String("<img ")), 2);
}

/** Each piece of C++ on a page is a part of an example, which is compiled. */
void Tool::codeOnPages()
{
    const auto textOf = [](const QFileInfo &file) { return readFile(file.filePath()); };
    const QDir folder(QStringLiteral(EXAMPLES_DIR));
    QString compiled;
    for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.cpp")})) {
        const QString text = textOf(file);
        compiled += text + QString(text).remove(QRegularExpression(QStringLiteral("(?m)^    ")));
    }
    QFileInfoList pages = QDir(folder.filePath(QStringLiteral("../docs"))).entryInfoList({QStringLiteral("*.md")});
    pages.append(QFileInfo(folder, QStringLiteral("../README.md")));
    const QRegularExpression piece(QStringLiteral("(?s)```cpp\n(.*?)```\n"));
    for (const QFileInfo &page : std::as_const(pages)) {
        for (auto found = piece.globalMatch(textOf(page)); found.hasNext();) {
            const QString code = found.next().captured(1);
            QVERIFY2(compiled.contains(code), qPrintable(page.fileName() + QStringLiteral(":\n") + code));
        }
    }
}

QTEST_GUILESS_MAIN(Tool)
#include "tool.moc"
