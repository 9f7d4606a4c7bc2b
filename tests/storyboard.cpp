// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "mmsbytes.h"
#include "smiltool.h"

#include <QtXml/QDomDocument>

class Storyboard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void frames_data() { addCases("frames.txt"); }
    void frames();
    void everyPartIsDrawn_data() { addCases("broken.txt"); }
    void everyPartIsDrawn();
    void noPictureIsTooLarge();
    void regions();
    void partsAreDrawn_data() { addCases("drawn.txt"); }
    void partsAreDrawn();
    void picturesFitTheirPlace();
    void drawsTo();
    void neverDrawsOver_data();
    void neverDrawsOver();
};

static QDomNodeList elementsOf(const QString &picture, const char *name)
{
    QDomDocument dom;
    dom.setContent(picture);
    return dom.elementsByTagName(QLatin1String(name));
}

/** The content of each text of the picture, between slashes. */
static QString textsIn(const QString &picture)
{
    const QDomNodeList texts = elementsOf(picture, "text");
    QStringList all;
    for (int i = 0; i < texts.size(); ++i) {
        all.append(texts.at(i).toElement().text());
    }
    return all.join(QStringLiteral(" / "));
}

/** The place of each element of that name, between slashes, and whether the picture in it is distorted. */
static QString placesOf(const QString &picture, const char *element)
{
    const QDomNodeList elements = elementsOf(picture, element);
    QStringList all;
    for (int i = 0; i < elements.size(); ++i) {
        QString place;
        for (const char *const name : {"x", "y", "width", "height", "preserveAspectRatio"}) {
            place += elements.at(i).toElement().attribute(QLatin1String(name)) + QLatin1Char(' ');
        }
        all.append(place.trimmed());
    }
    return all.join(QStringLiteral(" / "));
}

void Storyboard::frames()
{
    QFETCH(QString, body);
    const QByteArray head =
        "<smil><head><layout><root-layout width='184' height='160'/><region id='I'/><region id='over' width='100'/>"
        "<region id='low' height='10'/><region id='two' height='30'/><region id='thin' width='40'/>"
        "<region id='off' left='184'/></layout></head><body>";
    QTEST(textsIn(smiltool("storyboard -", head + body.toUtf8() + "</body></smil>").out), "texts");
}

/** Of a whole message, which has a picture, a text and a card, whatever its SMIL says. */
void Storyboard::everyPartIsDrawn()
{
    QFETCH(QString, smil);
    QFETCH(QString, problem);
    const auto named = [](const QByteArray &type, const QByteArray &name, const QByteArray &data) {
        return part(sized(text(type) + '\x85' + text(name)) + '\xC0' + text("\"<" + name + "@x>"), data);
    };
    const QByteArray parts = named("image/png", "photo", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16))
        + named("text/plain", "words", "Hello") + named("application/x-card", "card", QByteArray("\0\1", 2));
    const QByteArray slides = smil.isEmpty() ? QByteArray() : named("application/smil", "smil", smil.toUtf8());
    const Outcome outcome =
        smiltool("storyboard -", message(sized(text("multipart/mixed")), smil.isEmpty() ? 3 : 4, parts + slides));
    QTEST(textsIn(outcome.out), "texts");
    QCOMPARE(outcome.out.count(QLatin1String("<image ")), 1);
    const QRegularExpression expected(QRegularExpression::anchoredPattern(problem));
    QVERIFY2(expected.match(outcome.err).hasMatch(), qPrintable(outcome.err));
    QCOMPARE(outcome.status, problem.isEmpty() ? 0 : 1);
}

void Storyboard::noPictureIsTooLarge()
{
    const QByteArray media = "<smil><head/><body>" + QByteArray("<img/>").repeated(401) + "</body></smil>";
    const QString texts = textsIn(smiltool("storyboard -", media).out);
    QCOMPARE(texts.count(QString::fromUtf8("▣ ?")), 400);
    QVERIFY2(texts.endsWith(QStringLiteral("Plays 2005s. Only 400 of 401 slides are drawn.")), qPrintable(texts));
    const auto board = [](const QByteArray &root) {
        return smiltool("storyboard -", "<smil><head><layout>" + root + "</layout></head><body><img/></body></smil>")
            .out;
    };
    QCOMPARE(board("<root-layout width='1e9' height='0'/>"), board("<root-layout/>"));
    const QTemporaryDir folder;
    const QString large = QStringLiteral(
        "printf '\\211PNG\\r\\n\\032\\n' >$old; truncate -s 3670016 $old; : >$board; "
        "$tool storyboard --parts $dir - -o $board <<EOF; echo $?; grep -c '<image' $board\n"
        "<smil><head><layout><region id='1'/><region id='2'/><region id='3'/></layout></head>"
        "<body><par><img src='old' region='1'/><img src='old' region='2'/><img src='old' region='3'/></par></body>"
        "</smil>\nEOF\n");
    const Outcome drawn = runScript(folder.path(), large);
    QCOMPARE(drawn.out, QStringLiteral("1\n2\n"));
    QCOMPARE(drawn.err, folder.path() + QStringLiteral("/old: would be more than 7 MiB with the pictures before it\n"));
    QCOMPARE(textsIn(readFile(folder.filePath(QStringLiteral("board")))),
             QString::fromUtf8("▣ old / 1 · 0:00 · 5s / Plays 5s."));
    // No letter fits, and none is halved: the writer would stop there.
    const QString thin = QStringLiteral(
        "printf '\\360\\237\\230\\200' >$old; $tool storyboard --parts $dir - <<EOF\n<smil><head><layout>"
        "<region id='1' width='9'/></layout></head><body><text src='old' region='1'/></body></smil>\nEOF\n");
    QCOMPARE(textsIn(runScript(folder.path(), thin).out), QString::fromUtf8("😀 / 1 · 0:00 · 5s / Plays 5s."));
    const QByteArray longName =
        "<smil><head/><body><par><img src='" + QByteArray(9999, 'a') + ".jpg'/></par></body></smil>";
    const QString picture = smiltool("storyboard -", longName).out;
    QVERIFY2(picture.size() < 5000, qPrintable(QString::number(picture.size())));
    QCOMPARE(textsIn(picture), QString::fromUtf8("▣ aaaaaaaaaaaaaaaa…jpg / 1 · 0:00 · 5s / Plays 5s."));
}

/** The first of two regions with one id counts. The fifth frame is in the second row. */
void Storyboard::regions()
{
    const QString picture =
        smiltool("storyboard -",
                 "<smil><head><layout><root-layout width='184' height='92'/><region id='A' left='10' right='20'/>"
                 "<region id='A' left='1'/><region id='B' top='-10' height='30'/>"
                 "<region id='C' left='180' width='30' bottom='0.5in'/></layout></head><body>"
                 "<img region='A'/><img region='B'/><img region='C'/><img/><img/></body></smil>")
            .out;
    QCOMPARE(placesOf(picture, "rect").section(QStringLiteral(" / "), 1, 6),
             QStringLiteral("0 0 184 92 / 10 0 154 92 / 0 0 184 92 / 0 0 184 20 / 0 0 184 92 / 180 0 4 44"));
    const QString fifth = elementsOf(picture, "g").at(4).toElement().attribute(QStringLiteral("transform"));
    QVERIFY2(fifth.startsWith(QLatin1String("translate(16 1")), qPrintable(fifth));
}

void Storyboard::partsAreDrawn()
{
    QFETCH(QString, part);
    QFETCH(QString, drawn);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("part")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(part.toLatin1()) == part.size() && file.flush());
    const Outcome outcome =
        smiltool({QStringLiteral("storyboard"), QStringLiteral("--parts"), folder.path(), QStringLiteral("-")},
                 "<smil><head><layout><root-layout width='184' height='160'/>"
                 "<region id='I' width='100' height='30' fit='hidden'/></layout></head>"
                 "<body><par><img src='part' region='I'/></par></body></smil>");
    const QString images = placesOf(outcome.out, "image");
    QCOMPARE(images.isEmpty() ? textsIn(outcome.out) : images, drawn);
    QCOMPARE(outcome.out.count(QLatin1String("<text x=\"96\" y=\"11.25\" class=\"rtl\">")),
             drawn.startsWith(QStringLiteral("\u05e9")) ? 1 : 0);
}

void Storyboard::picturesFitTheirPlace()
{
    QByteArray regions;
    QByteArray media;
    for (const char *const fit : {"meet", "slice", "fill", "hidden"}) {
        regions += QByteArray("<region id='") + fit + "' fit='" + fit + "' left='"
            + QByteArray::number(50 * media.count('/')) + "' width='44'/>";
        media += QByteArray("<img src='beach.jpg' region='") + fit + "' alt='&lt;" + fit + "'/>";
    }
    const QByteArray pages =
        "<par>" + media + "</par><par>" + media + "</par><par><img src='beach.jpg'/><img src='beach.jpg'/></par>";
    const Outcome outcome = smiltool("storyboard --parts holiday -",
                                     "<smil><head><layout><root-layout width='184' height='75'/>" + regions
                                         + "</layout></head><body>" + pages + "</body></smil>");
    QCOMPARE(
        placesOf(outcome.out, "image"),
        QStringLiteral("0 18.75 44 37.5 / -22 0 88 75 / 0 0 44 75 none / 0 18.75 44 37.5 / 2 0 88 75 / 2 0 88 75"));
    // The second frame has no data of its own.
    QCOMPARE(outcome.out.count(QLatin1String("<use ")), 4);
    QVERIFY2(outcome.out.contains(QStringLiteral("<title>\u25a3 &lt;slice in slice</title>")), qPrintable(outcome.out));
}

void Storyboard::drawsTo()
{
    for (const char *const script : {
             "$tool storyboard nested.smil -o $board && cat $board",
             "cat nested.smil | $tool storyboard - -o $board && cat $board",
             "$tool storyboard nested.smil --output $old && cat $old",
             "$tool storyboard nested.smil -o -",
             "$tool storyboard nested.smil -o /dev/stdout | cat",
             "mkfifo $board && (cat $board & $tool storyboard nested.smil -o $board; wait) && test -p $board",
         }) {
        const QTemporaryDir folder;
        const Outcome outcome = runScript(folder.path(), QLatin1String(script));
        QVERIFY2(outcome.err.isEmpty() && outcome.status == 0, qPrintable(QLatin1String(script) + outcome.err));
        QCOMPARE(textsIn(outcome.out), textsIn(golden(QStringLiteral("nested.storyboard"))));
    }
}

void Storyboard::neverDrawsOver_data()
{
    QTest::addColumn<QString>("problem");
    const QString itself = QStringLiteral(": is the message itself\n");
    QTest::newRow("$tool storyboard $old -o $old") << itself;
    QTest::newRow("ln $old $board; $tool storyboard $old -o $board") << itself;
    QTest::newRow("$tool storyboard - -o $old <$old") << itself;
    QTest::newRow("echo \"<smil><head/><body><audio src='old'/></body></smil>\" | "
                  "$tool storyboard - --parts $dir -o $old")
        << QStringLiteral(": is a part of the message\n");
    QTest::newRow("echo '<smil/>' | $tool storyboard - --parts $dir -o $old")
        << QStringLiteral(": Fail to find SMIL head!\n");
}

void Storyboard::neverDrawsOver()
{
    const QTemporaryDir folder;
    const QString script = QStringLiteral("cp nested.smil $old; %1; status=$?; cmp nested.smil $old; exit $status");
    const Outcome outcome = runScript(folder.path(), script.arg(QLatin1String(QTest::currentDataTag())));
    QTEST(outcome.err.mid(outcome.err.indexOf(QLatin1String(": "))), "problem");
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 1);
}

QTEST_GUILESS_MAIN(Storyboard)
#include "storyboard.moc"
