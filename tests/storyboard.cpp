// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "smiltool.h"

#include <QtXml/QDomDocument>

class Storyboard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void frames_data();
    void frames();
    void noPictureIsTooLarge();
    void regions_data();
    void regions();
    void partsAreDrawn_data();
    void partsAreDrawn();
    void picturesFitTheirRegion();
    void drawsTo_data();
    void drawsTo();
    void neverDrawsOverTheMessage();
    void neverDrawsOverAPart();
};

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

void Storyboard::frames_data()
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

void Storyboard::frames()
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

void Storyboard::noPictureIsTooLarge()
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

void Storyboard::regions_data()
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

void Storyboard::regions()
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

void Storyboard::partsAreDrawn_data()
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

void Storyboard::partsAreDrawn()
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

void Storyboard::picturesFitTheirRegion()
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

void Storyboard::drawsTo_data()
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

void Storyboard::drawsTo()
{
    QFETCH(QString, script);
    const QTemporaryDir folder;
    const Outcome outcome = runScript(folder.path(), script);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(textsIn(outcome.out), textsIn(golden(QStringLiteral("nested.storyboard"))));
    QCOMPARE(outcome.status, 0);
}

void Storyboard::neverDrawsOverTheMessage()
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

void Storyboard::neverDrawsOverAPart()
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

QTEST_GUILESS_MAIN(Storyboard)
#include "storyboard.moc"
