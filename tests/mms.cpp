// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/mms.h"
#include "mmsbytes.h"

#include <QtTest/QtTest>

#include <utility>
#include <vector>

static const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");
static const QByteArray slides("<smil><head/><body/></smil>");

/** A message that uses every way to write something. */
static QByteArray greeting()
{
    const QByteArray headers = QByteArray("\x8C\x84\x98") + text("T1") + "\x8D\x90" + "\x85\x04\x3E\x4F\x0A\x11"
        + '\x89' + sized('\x80' + text("+15550100/TYPE=PLMN")) + '\x97' + text("anna@example.org") + '\x97'
        + sized('\x83' + text("+15550101/TYPE=PLMN")) + '\x96'
        + sized(QByteArray("\xEA\x7F") + text("\xC3\xA9t\xC3\xA9")) + text("X-Extra") + text("anything");
    const QByteArray type = '\x84'
        + sized('\xB3' + QByteArray("\x8A") + text("<start>") + '\x89' + text("application/smil") + text("x")
                + text("y"));
    const QByteArray photo = sized('\xA0' + QByteArray("\x85") + text("photo.png")) + "\xAE"
        + sized("\x81\x86" + text("other.png")) + text("Content-ID") + text("\"<one>");
    return headers + type + uintvar(4) + part(text("application/smil"), "decoy") + part(photo, png)
        + part(sized("\x83\x81\xEA") + "\x8E" + text("hello.txt") + "\xC5" + sized("\x81\x98" + text("said.txt")),
               "Hello")
        + part(text("Application/SMIL; charset=utf-8") + "\xC0" + text("\"<start>\""), slides);
}

class Mms : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whole();
    void problems_data();
    void problems();
    void encodedTexts_data();
    void encodedTexts();
    void anyDamage();
};

void Mms::whole()
{
    MmsMessage read;
    QCOMPARE(decodeMms(greeting(), read), QString());
    QCOMPARE(read.from, QStringLiteral("+15550100"));
    QCOMPARE(read.to.join(QLatin1Char(' ')), QStringLiteral("anna@example.org +15550101"));
    QCOMPARE(read.subject, QStringLiteral("\u00e9t\u00e9"));
    QCOMPARE(read.date.toString(Qt::ISODate), QStringLiteral("2003-02-16T03:48:33Z"));
    QStringList parts;
    for (const SmilPart &each : std::as_const(read.parts)) {
        parts += QStringList{each.name, each.contentId, each.location, each.type}.join(QLatin1Char(','));
    }
    QCOMPARE(parts,
             QStringList({QStringLiteral(",,,application/smil"), QStringLiteral("photo.png,<one>,,image/png"),
                          QStringLiteral("said.txt,,hello.txt,text/plain; charset=utf-8"),
                          QStringLiteral(",<start>,,Application/SMIL; charset=utf-8")}));
    QCOMPARE(read.data, QList<QByteArray>({"decoy", png, "Hello", slides}));
    QCOMPARE(read.start, QStringLiteral("<start>"));
}

void Mms::problems_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const QByteArray &bytes, const char *problem) {
        QTest::newRow(name) << bytes << QString::fromLatin1(problem);
    };
    const QByteArray smil = part(text("application/smil"), slides);
    row("another multipart, with two parts of the starting name",
        message(sized('\xA2' + QByteArray("\x8A") + text("a")), 2,
                part(text("application/smil") + "\x8E" + text("a"), slides)
                    + part(text("text/plain") + "\x8E" + text("a"), "x")),
        "");
    row("nothing after the type", "\x8C\x80", "is cut off at byte 2, or has a length there that is wrong");
    row("long header", "\x8C\x80\x96\x1EHi", "is cut off at byte 2, or has a length there that is wrong");
    row("notification", "\x8C\x82\x98" + text("T"), "is a notification or a report, which has no parts");
    row("no parts", message("\x83", 0, "Hello"), "has no parts");
    row("too few", message("\xB3", 2, smil),
        "is cut off in its parts (number 2 of 2), or has a length there that is wrong");
    row("long header of a part", message("\xB3", 2, smil + part("\x03\x83", slides)),
        "is cut off in its parts (number 2 of 2), or has a length there that is wrong");
    row("long parameter", message("\xB3", 1, part("\x03\x83\x85\x40\xC0" + text("x"), slides)),
        "is cut off in its parts (number 1 of 1), or has a length there that is wrong");
    row("too many", message("\xB3", 1001, QByteArray(4004, '\0')),
        "does not say how many parts it has, or has more than 1000");
    row("endless count", message("\xB3", 0, QByteArray()).chopped(1) + QByteArray(9, '\xFF'),
        "does not say how many parts it has, or has more than 1000");
}

void Mms::problems()
{
    QFETCH(QByteArray, bytes);
    MmsMessage read;
    QTEST(decodeMms(bytes, read), "problem");
}

void Mms::encodedTexts_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("subject");
    const QString accented = QStringLiteral("\u00c3\u00a9");
    QTest::newRow("UTF-8 without a number") << text("\x7F\xC3\xA9") << QStringLiteral("\u00e9");
    QTest::newRow("not UTF-8") << text("a\xE9") << QStringLiteral("a\u00e9");
    QTest::newRow("Latin-1 that could be UTF-8") << sized("\x84" + text("\xC3\xA9")) << accented;
    QTest::newRow("number 106, without an end") << sized("\xEA\xC3\xA9") << QStringLiteral("\u00e9");
    QTest::newRow("UTF-16 in two bytes of number")
        << sized(QByteArray("\x02\x03\xF7\x00\xC3\x00\xA9\x00\x00", 9)) << accented;
    QTest::newRow("UCS-2 with a mark") << sized(QByteArray("\x02\x03\xE8\xFF\xFE\xC3\x00\xA9\x00", 9)) << accented;
    QTest::newRow("little endian") << sized(QByteArray("\x02\x03\xF6\xC3\x00\xA9\x00", 7)) << accented;
}

void Mms::encodedTexts()
{
    QFETCH(QByteArray, value);
    MmsMessage read;
    QCOMPARE(decodeMms("\x8C\x80\x96" + value + '\x84' + "\x83", read), QStringLiteral("has no parts"));
    QTEST(read.subject, "subject");
}

/** Whatever is missing or changed: a message, or a problem in one line. */
void Mms::anyDamage()
{
    const QByteArray good = greeting();
    QVector<QByteArray> damaged;
    for (int i = 0; i < int(good.size()); ++i) {
        damaged.append(good.left(i));
        for (const char byte : {'\x00', '\x1F', '\x7F', '\x80', '\xFF'}) {
            damaged.append(QByteArray(good).replace(i, 1, &byte, 1));
        }
    }
    for (const QByteArray &bytes : std::as_const(damaged)) {
        // Nothing behind the last byte, so that a sanitizer sees who reads on.
        const std::vector<char> exact(bytes.begin(), bytes.end());
        MmsMessage read;
        const QString problem = decodeMms(QByteArray::fromRawData(exact.data(), bytes.size()), read);
        const bool whole = problem.isEmpty() && bytes.size() == good.size();
        const bool told = !problem.isEmpty() && !problem.contains(QLatin1Char('\n'));
        QVERIFY2(whole || told, qPrintable(problem + QString::fromLatin1(bytes.toHex(' '))));
    }
}

QTEST_APPLESS_MAIN(Mms)
#include "mms.moc"
