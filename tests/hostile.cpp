// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

#include <memory>
#include <random>

/** Makes the bytes of a document from its text, one byte for each of its characters up to U+00FF. */
using Encode = std::function<QByteArray(const QByteArray &)>;
Q_DECLARE_METATYPE(Encode)

class Hostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data();
    void documents();
    void encodings_data();
    void encodings();
    void declarations_data();
    void declarations();
    void characters_data();
    void characters();
    void surrogates();
    void namesBeyondLatin1();
    void references_data();
    void references();
    void generated();
};

/** What the host is told of the input, and the model, read on a small stack. */
static QString read(const QByteArray &input)
{
    QString told;
    const std::unique_ptr<QThread> thread(QThread::create([&] { told = toldByLibrary(input); }));
    thread->setStackSize(512 * 1024);
    thread->start();
    thread->wait();
    return told;
}

static QByteArray utf8(const QByteArray &text)
{
    return QString::fromLatin1(text).toUtf8();
}

static bool isRefused(const QString &told)
{
    return told.startsWith(QStringLiteral("WFail to parse"));
}

/** A "\xb6" in the text marks where the document is cut off. Without one, the library changes nothing. */
static void check(const QByteArray &text, const Encode &encode = utf8)
{
    const QByteArrayList parts = text.split('\xb6');
    const QString expected = toldByReaderAlone(encode(parts.first()));
    QCOMPARE(read(encode(parts.join())), expected);
    QVERIFY(parts.size() == 1 || isRefused(expected));
}

void Hostile::documents_data()
{
    QTest::addColumn<QString>("text"); // "{3*a#}" stands for "a0a1a2"; it reads without what is between bars
    addCases("hostile.txt");
    QTest::newRow("blanks in a tag") << QStringLiteral(
        "<smil><head/><body><x{5000* }{5000*\t}{5000*\r}{5000*\n}a=''/></body></smil>");
}

void Hostile::documents()
{
    QFETCH(QString, text);
    static const QRegularExpression repeated(QStringLiteral("\\{(\\d+)\\*([^{}]*)\\}"));
    for (QRegularExpressionMatch match; (match = repeated.match(text)).hasMatch();) {
        QString all;
        for (int i = 0; i < match.captured(1).toInt(); ++i) {
            all += match.captured(2).replace(QLatin1Char('#'), QString::number(i));
        }
        text.replace(match.capturedStart(), match.capturedLength(), all);
    }
    const QByteArrayList parts = text.toLatin1().split('|');
    check(parts.join());
    if (parts.size() > 1) {
        check(parts.first() + parts.last());
        QVERIFY(!isRefused(read(utf8(parts.first() + parts.last()))));
    }
}

void Hostile::encodings_data()
{
    QTest::addColumn<QByteArray>("open"); // opens one level
    QTest::addColumn<QByteArray>("flat"); // opens none
    QTest::addColumn<Encode>("encode");

    const auto declared = [](const QByteArray &encoding) -> Encode {
        return [=](const QByteArray &text) { return "<?xml version='1.0' encoding='" + encoding + "'?>" + text; };
    };
    const QByteArray open = "<x a='/>' b=\"'>\">\n<!-- </x> --><![CDATA[</x>]]]]><?p </x>?>\xe9";
    const QByteArray flat = "<!--<x>--><![CDATA[<x>]]><?p <x>?><x a='/' b='>'></x\n>\xe9";
    QTest::newRow("UTF-8") << open << flat << Encode(utf8);
    QTest::newRow("marked UTF-8") << open << flat << Encode([](auto &text) { return "\xef\xbb\xbf" + utf8(text); });
    QTest::newRow("Latin-1") << open << flat << declared("ISO-8859-1");
    for (int kind = 0; kind < 8; ++kind) {
        QTest::addRow("UTF-%d, %s, %s", kind & 1 ? 32 : 16, kind & 2 ? "BE" : "LE", kind & 4 ? "marked" : "unmarked")
            << open << flat << Encode([=](auto &text) {
                   return wide(QString::fromLatin1(text), kind & 1 ? 4 : 2, kind & 2, kind & 4);
               });
    }
    // Taken for ASCII, these show other markup.
    const auto row = [&](const char *encoding, const QByteArray &one, const QByteArray &none) {
        QTest::newRow(encoding) << one << none << declared(encoding);
    };
    row("UTF-7", "+ADw-x+AD4-", "+ADw-x/+AD4-");
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0) // whose reader refuses the second one itself
    row("ISO-2022-JP", "<x>\x1b$B</x>\x1b(B", "\x1b$B<x>>\x1b(B");
#endif
    row("GBK", "<x><![CDATA[\x81]]></x>]]>", "<![CDATA[\x81]]><x>]]>");
}

void Hostile::encodings()
{
    QFETCH(QByteArray, open);
    QFETCH(QByteArray, flat);
    QFETCH(Encode, encode);
    const QByteArray start = "<!DOCTYPE smil SYSTEM ']>[<x>'><smil><head/><body>";
    check(start + open.repeated(200) + QByteArray("<x>").repeated(310) + "\xb6<x>", encode);
    check(start + flat.repeated(600) + "</body></smil>", encode);
    check("<smil><head/><body>" + QByteArray("<x></x>").repeated(600) + "</body></smil>", encode);
    SmilParser parser(encode("<smil><head/><body/></smil>"));
    QString error;
    parser.parse(&error);
    QVERIFY2(error.isNull(), qPrintable(error));
    parser.parse(&error);
    QVERIFY(!error.isNull()); // it is read once, decoded or not
}

void Hostile::declarations_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<Encode>("encode");
    QTest::addColumn<bool>("odd"); // and therefore refused

    const Encode bytes = [](auto &text) { return text; };
    const Encode utf16 = [](auto &text) { return wide(QString::fromLatin1(text), 2, true, true); };
    const auto row = [](const char *name, const QByteArray &declaration, const Encode &encode, bool odd) {
        QTest::newRow(name) << declaration << encode << odd;
    };
    row("none", "<?xml version='1.0'?>", bytes, false);
    row("UTF-8 in any case", "<?xml version='1.0' encoding = \"Utf-8\" standalone='yes'?>", bytes, false);
    row("marked UTF-8", "\xef\xbb\xbf<?xml version='1.0' encoding='UTF-8'?>", bytes, false);
    row("other name of UTF-8", "<?xml version='1.0' encoding='UTF8'?>", bytes, false);
    row("known", "<?xml version='1.0' encoding='windows-1251'?>", bytes, false);
    row("instruction that begins like one", "<?xml-model href='a'?>", bytes, false);
    row("UTF-16", "<?xml version='1.0' encoding='UTF-16'?>", utf16, false);
    row("without a word of it", "<?xml version='1.0'?>", utf16, false);
    row("unknown", "<?xml version='1.0' encoding='x'?>", bytes, true);
    row("empty", "<?xml version='1.0' encoding=''?>", bytes, true);
    row("two", "<?xml version='1.0' encoding='UTF-8' encoding='GBK'?>", bytes, true);
    row("within another value", "<?xml version=' encoding=' encoding='GBK'?>", bytes, true);
    row("without quotation marks", "<?xml version='1.0' encoding=xUTF-8x standalone='UTF-7'?>", bytes, true);
    row("no declaration, in UTF-16", "<!-- encoding=\"GBK\" -->", utf16, false);
    row("not what the bytes are", "<?xml version='1.0' encoding='UTF-16'?>", bytes, true);
    row("EBCDIC in ASCII", "<?xml version='1.0' encoding='IBM037'?>", bytes, true);
    row("UTF-8 in UTF-16", "<?xml version='1.0' encoding='UTF-8'?>", utf16, true);
    // Qt 6 alone takes bytes that are not of the encoding for an error.
    row("bytes that are not of it", "<?xml version='1.0' encoding='UTF8'?><!--\xe9-->", bytes,
        QT_VERSION >= QT_VERSION_CHECK(6, 0, 0));
    row("1024 bytes", "<?xml version='1.0'" + QByteArray(1003, ' ') + "?>", bytes, false);
    row("1025 bytes", "<?xml version='1.0'" + QByteArray(1004, ' ') + "?>", bytes, true);
}

void Hostile::declarations()
{
    QFETCH(QByteArray, declaration);
    QFETCH(Encode, encode);
    QFETCH(bool, odd);
    const QByteArray message = encode(declaration + "<smil><head title='a'/><body/></smil>");
    const QString told = read(message);
    QCOMPARE(isRefused(told), odd);
    if (!odd) {
        QCOMPARE(told, toldByReaderAlone(message));
    }
    QVERIFY(isRefused(read(encode(declaration + QByteArray("<x>").repeated(600)))));
}

void Hostile::characters_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<bool>("readByQt5"); // Qt 6 reads none of them

    QTest::newRow("U+0000") << QString(QChar(0)) << true;
    QTest::newRow("U+0001") << QString(QChar(1)) << true;
    QTest::newRow("U+FFFE") << QString(QChar(0xfffe)) << false;
    QTest::newRow("U+FFFF") << QString(QChar(0xffff)) << false;
}

// Characters that XML forbids. Nothing is hidden behind one: Qt 6 stops at each, Qt 5 reads the first two like any
// other and takes the last two for the end of the document.
void Hostile::characters()
{
    QFETCH(QString, character);
    QFETCH(bool, readByQt5);
    const bool readHere = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) && readByQt5;
    const QString body = QStringLiteral("<smil><head/><body>%1</body></smil>");
    const QString levels = QString(QStringLiteral("<x>")).repeated(600) + QString(QStringLiteral("</x>")).repeated(600);
    for (const QString &place : {QStringLiteral("%1"), QStringLiteral("<x a='%1'/>"), QStringLiteral("<!--%1-->"),
                                 QStringLiteral("<![CDATA[%1]]>"), QStringLiteral("<?p %1?>")}) {
        const QString text = body.arg(place.arg(character));
        const QString hidden = body.arg(place.arg(character) + levels);
        for (const int width : {1, 2}) {
            const auto encode = [=](const QString &plain) {
                return width == 1 ? plain.toUtf8() : wide(plain, 2, false, true);
            };
            QVERIFY2(isRefused(read(encode(text))) != readHere, qPrintable(place));
            QVERIFY2(isRefused(read(encode(hidden))), qPrintable(place));
        }
    }
    const QByteArray behind = (body.arg(QString()) + character).toUtf8();
    QCOMPARE(read(behind), toldByReaderAlone(behind));
}

// No characters either: Qt 6.4 and 6.8 make them "?", and Qt 6.11 crashes on them.
void Hostile::surrogates()
{
    const QString lone(QChar(0xd83c));
    const QString pair = lone + QChar(0xdf0a);
    const QString message =
        QStringLiteral("<smil><head title='%1'/><body><!--%1--><?p %1><x>?><![CDATA[%1]]>%1</body></smil>");
    const auto title = [](const QString &text) { return SmilParser(wide(text, 2, false, true)).parse().header.title; };
    QCOMPARE(title(message.arg(pair)), pair);
    QCOMPARE(title(message.arg(lone)), QString(QChar(QChar::ReplacementCharacter)));
    QCOMPARE(title(message.arg(QString(lone + lone))), QString(2, QChar(QChar::ReplacementCharacter)));
    QCOMPARE(title(message.arg(QChar(0xdf0a))), QString(QChar(QChar::ReplacementCharacter)));
    QVERIFY(title(message.arg(pair) + lone).isNull());
    const QString mark(QChar(QChar::ByteOrderMark));
    QCOMPARE(title(message.arg(mark)), mark);
    QVERIFY(title(mark + message).isNull()); // the second one, which Qt 6 would drop
}

// A name counts as many units of UTF-16, whatever it takes in UTF-8. Past 4096, Qt 6.4 would go on behind the quotation
// mark, where the library saw it begin a value.
void Hostile::namesBeyondLatin1()
{
    const QString text = QStringLiteral("<smil><head/><body><x %1%2/></body></smil>");
    const QString three(QChar(0x4e00));
    const QString four = QString(QChar(0xd835)) + QChar(0xdc8f);
    const QString value = QStringLiteral("=''");
    for (const QString &character : {three, four}) {
        const QString longest = character.repeated(4096 / character.size());
        QCOMPARE(isRefused(read(text.arg(longest, value).toUtf8())),
                 isRefused(toldByReaderAlone(text.arg(longest, value).toUtf8())));
        QVERIFY(isRefused(read(text.arg(longest + QLatin1Char('a'), QStringLiteral("\" =''")).toUtf8())));
        QVERIFY(isRefused(read(wide(text.arg(longest + QLatin1Char('a'), QStringLiteral("\" =''")), 2, false, true))));
    }
}

void Hostile::references_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("readByQt5");
    QTest::addColumn<bool>("readByQt6");
    // Nothing can declare them within the limits. Qt 5 reads on, and so does Qt 6 where a file might declare them.
    QTest::newRow("content") << QStringLiteral("<smil><head/><body>&a;</body></smil>") << true << false;
    QTest::newRow("value") << QStringLiteral("<smil><head title='&a;'/><body/></smil>") << true << false;
    const QString type = QStringLiteral("<!DOCTYPE smil SYSTEM 'u'>");
    QTest::newRow("content, with a file")
        << type + QStringLiteral("<smil><head/><body>&a;</body></smil>") << true << true;
    QTest::newRow("value, with a file") << type + QStringLiteral("<smil><head title='&a;'/><body/></smil>") << true
                                        << true;
    // A letter that the DOM of Qt 6.11 does not know, and crashes on.
    const bool known = !QDomDocument().createEntityReference(QString(QChar(0x220))).isNull();
    QTest::newRow("new letter") << type + QStringLiteral("<smil><head/><body>&%1;</body></smil>").arg(QChar(0x220))
                                << true << known;
    const QString accented = QStringLiteral("a%1").arg(QChar(0x301));
    QTest::newRow("mark on a letter") << type + QStringLiteral("<smil><head/><body>&%1;</body></smil>").arg(accented)
                                      << true << true;
    QTest::newRow("byte order mark") << type
            + QStringLiteral("<smil><head/><body>&%1a;</body></smil>").arg(QChar(0xfeff))
                                     << false << false;
    QTest::newRow("outside") << type + QStringLiteral("&a;<smil/>") << false << false;
}

void Hostile::references()
{
    QFETCH(QString, text);
    QFETCH(bool, readByQt5);
    QFETCH(bool, readByQt6);
    const QString told = read(text.toUtf8());
    QCOMPARE(!isRefused(told), QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? readByQt5 : readByQt6);
}

/** A small document, with and without a document type, and with up to two errors. */
static QByteArray anyDocument(std::mt19937 &random)
{
    static const QByteArrayList types =
        QByteArray("~<?xml version='1.0'?>\n<!-- <smil> -->~<!DOCTYPE smil>~<!DOCTYPE smil SYSTEM 'u'>").split('~');
    static const QByteArrayList pieces =
        QByteArray("<par a='>' b=\"'/\"/>~<seq dur='&a;'\n/>~<img src='&lt;&#65;'/>~<text region='&b;'/>~"
                   "<!-- </par> -->~<![CDATA[</par>]]>~<?p </par>?>~&a;~&b;~&#x41;~t~\n~\xe9")
            .split('~');
    static const QByteArrayList errors = QByteArray("~<~>~&~'~\"~=~/~]~]]>~<!--~-->~<![CDATA[~<?~?>~<!DOCTYPE x>~<x/>~"
                                                    "</x>~&#0;~&u;~<?xml version='1.0'?>")
                                             .split('~');
    const auto any = [&](const QByteArrayList &list) { return list.at(int(random() % uint(list.size()))); };
    QByteArray text;
    for (uint steps = random() % 12; steps > 0; --steps) {
        text += any(pieces);
        text = random() % 3 ? text : "<par dur='2s'>" + text + "</par>";
    }
    text = "<smil>\n<head/><body dur='1s'>" + text + "</body></smil>";
    for (uint count = random() % 3; count > 0; --count) {
        text.replace(int(random() % uint(text.size())), int(random() % 3), any(errors));
    }
    return any(types) + text;
}

void Hostile::generated()
{
    std::mt19937 random(1);
    int wellFormed = 0;
    for (int i = 0; i < 4000; ++i) {
        const QByteArray text = anyDocument(random);
        const QByteArray bytes = i % 3 ? utf8(text) : wide(QString::fromLatin1(text), 2, i & 1, true);
        const QString expected = toldByReaderAlone(bytes);
        wellFormed += !expected.contains(QStringLiteral(" parse "));
        const QString told = read(bytes);
        // What stands behind an "&" may be beyond the limits where it is also an error.
        const bool refused = isRefused(told) && isRefused(expected) && text.contains('&');
        QVERIFY2(refused || told == expected, (text + told.toUtf8() + expected.toUtf8()).constData());
    }
    QVERIFY(wellFormed > 500);
}

QTEST_GUILESS_MAIN(Hostile)

#include "hostile.moc"
