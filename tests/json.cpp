// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "cases.h"
#include "commands/commands.h"
#include "mmsbytes.h"

class JsonOutput : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void golden_data();
    void golden();
    void whatCannotBeRead();
};

void JsonOutput::golden_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray large(308, '9');
    const QByteArray smil =
        "<smil><head id='i' title='' class='c&#x202e;&#x9b;&quot;\\'><meta/><meta id='' name='n' "
        "content='\xf0\x9f\x98\x80'/>"
        "<layout><root-layout width='160' height='240px'/><topLayout width='1in' height='2.5cm'/><region/>"
        "<region id='A' width='50%' height='36pt' top='1' left='2' bottom='3' right='4' fit='meet'/></layout></head>"
        "<body><par/><seq dur='1:30'><seq><img src='s' region='A' alt=''><param name='&quot;' value='v'/>"
        "<param name='p'/></img></seq><video src='cid:b' region='no' begin='2.5s' dur='"
        + large + "s'/></seq><par dur='" + large + "s'><audio src='c'/><text/></par><ref alt='words' dur='" + large
        + "s'/></body></smil>";
    const QByteArray bytes = QByteArray("\x8C\x84\x85\x04\x3E\x4F\x0A\x11\x89") + sized('\x80' + text("me")) + '\x97'
        + text("you") + '\x96' + sized(QByteArray("\xEA\x7F") + text("\x01\xC2\x9B\xE2\x80\xAE")) + "\x84\xB3\x01"
        + part(sized(text("application/smil") + "\x85" + text("s")), smil);
    // Every field, stated, empty, not stated, infinite, and with what a terminal would obey.
    QTest::newRow("everything") << bytes;
    QTest::newRow("broken") << message(
        "\xB3", 2,
        part(sized(text("application/smil") + "\x81\xEA"), "<smil><head/></smil>")
            + part(sized("\x83\x81\x84") + '\xC0' + text("<a>") + '\x8E' + text("a.txt"), "\xE9t\xE9"));
}

void JsonOutput::golden()
{
    QFETCH(QByteArray, bytes);
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    showJson(readBytes(bytes, QStringLiteral("a\u0000b"), QString()), out);
    const QJsonObject json = QJsonDocument::fromJson(out.data()).object();
    QFile golden(QFINDTESTDATA("golden/") + QLatin1String(QTest::currentDataTag()) + QLatin1String(".json"));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    const QJsonObject expected = QJsonDocument::fromJson(golden.readAll()).object();
    COMPARE_SEEN(QStringLiteral("reads the JSON"), QString::fromUtf8(QJsonDocument(json).toJson()),
                 QString::fromUtf8(QJsonDocument(expected).toJson()));
    QCOMPARE(out.data().count('\n'), 1);
    const std::u32string line = QString::fromUtf8(out.data().chopped(1)).toStdU32String();
    QVERIFY2(std::none_of(line.begin(), line.end(), needsEscaping), out.data().constData());
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
        QVERIFY(!result.ok && result.problems.size() == 1);
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
