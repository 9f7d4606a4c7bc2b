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
    void changesOfEncoding();
    void marksInNames();
    void generated();
};

/** What the host is told of the input, and the model, read on a small stack. */
static QString read(const QByteArray &input)
{
    Messages messages(0);
    QString model;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        SmilParser parser(input);
        model = Outline::of(parser.parse());
        parser.getContent();
    }));
    thread->setStackSize(512 * 1024);
    thread->start();
    thread->wait();
    return messages.take() + model;
}

/** The same, from the XML reader itself. */
static QString readDirectly(QByteArray input)
{
    Messages messages(0);
    QBuffer buffer(&input);
    buffer.open(QIODevice::ReadOnly);
    QDomDocument dom;
    QString error;
    int line = 0;
    int column = 0;
    SmilParser parser((SmilDocument()));
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // from Qt 6.8, in favour of one that Qt 5 and 6.4 do not have
        const bool wellFormed = dom.setContent(&buffer, &error, &line, &column);
    QT_WARNING_POP
    if (!wellFormed) {
        qWarning("Fail to parse SMIL document: '%s' at (%d,%d)!", qPrintable(error), line, column);
    } else if (QDomElement smil = dom.firstChildElement(QStringLiteral("smil")); smil.isNull()) {
        qWarning("Fail to find SMIL document!");
    } else {
        parser.parseSmilDocument(smil);
    }
    const QString told = messages.take();
    return told + Outline::of(parser.parse()); // finds no input, so that the model stays
}

static QByteArray utf8(const QByteArray &text)
{
    return QString::fromLatin1(text).toUtf8();
}

/** An "@" in the text marks where the document is cut off. Without one it reads. */
static void check(const QByteArray &text, const Encode &encode = utf8)
{
    const QByteArrayList parts = text.split('@');
    const QString expected = readDirectly(encode(parts.first()));
    QCOMPARE(read(encode(parts.join())), expected);
    QCOMPARE(expected.startsWith(QStringLiteral("WFail to parse")), parts.size() > 1);
}

void Hostile::documents_data()
{
    QTest::addColumn<QString>("text"); // "{3*a#}" stands for "a0a1a2"; it reads without what is between bars
    addCases("hostile.txt");
}

void Hostile::documents()
{
    QFETCH(QString, text);
    static const QRegularExpression repeated(QStringLiteral("\\{(\\d+)\\*([^}]*)\\}"));
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
    }
}

/** In units of @p width bytes, after the byte order mark when there is one. */
static QByteArray wide(const QByteArray &text, int width, bool bigEndian, bool marked)
{
    QByteArray bytes = marked ? QByteArray("\xff\xfe") + QByteArray(width - 2, 0) : QByteArray();
    for (const char c : text) {
        bytes += c + QByteArray(width - 1, 0);
    }
    for (int i = 0; bigEndian && i < bytes.size(); i += width) {
        std::reverse(bytes.begin() + i, bytes.begin() + i + width);
    }
    return bytes;
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
            << open << flat << Encode([=](auto &text) { return wide(text, kind & 1 ? 4 : 2, kind & 2, kind & 4); });
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
    const QByteArray start = "<!DOCTYPE smil [<!ENTITY a ']>'><!-- ]><x>' --><?p ]>'?><!ATTLIST z y CDATA \"]>'\">]>"
                             "<smil><head/><body>";
    check(start + open.repeated(510) + "@<x>", encode);
    check(start + flat.repeated(600) + "</body></smil>", encode);
}

/** A small document, with and without a document type, and with up to two errors. */
static QByteArray anyDocument(std::mt19937 &random)
{
    static const QByteArrayList types =
        QByteArray("~<?xml version='1.0'?>\n<!-- <smil> -->~<!DOCTYPE smil SYSTEM 'u'>~"
                   "<!DOCTYPE smil [<!ENTITY a 'x&#38;amp;'><!ENTITY b '<par>&a;</par>'>]>~"
                   "<!DOCTYPE smil [<!-- ]> --><!ENTITY b \"&a;'&a;\"><!ENTITY a '5s'><?p ]>?>"
                   "<!ATTLIST par dur CDATA '7&#115;' src ID #IMPLIED>]>~"
                   "<!DOCTYPE smil [<!ELEMENT smil (#PCDATA|(a,b)*)><!NOTATION n SYSTEM ']'>"
                   "<!ENTITY a SYSTEM 'u'><!ENTITY b SYSTEM 'u' NDATA n>]>")
            .split('~');
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

void Hostile::changesOfEncoding()
{
    const auto bytes = [](auto &text) { return text; };
    // Qt 5 starts over in EBCDIC, and finds no XML.
    const QByteArray level = "\x4c\xa7\x6e";
    check("<?xml version='1.0' encoding='IBM037'?>" + level.repeated(512) + '@' + level.repeated(9), bytes);
    // The document is shorter in its encoding than it seems up to where that is declared.
    check("<?xml version='" + QByteArray(300, '\x96') + "' encoding='GBK'?>@", bytes);
    // What Qt 6 has already read of it is, anew, another "<".
    const QString levels =
        QStringLiteral("< ") + QStringLiteral("<a>").repeated(700) + QStringLiteral("</a>").repeated(700);
    const QByteArray wideLevels(reinterpret_cast<const char *>(levels.utf16()), int(levels.size() * 2));
    const QByteArray ascii = QByteArray("<?xml version='1.0' encoding='UTF-16LE'?>").leftJustified(80);
    QVERIFY(read(ascii + wideLevels).startsWith(QStringLiteral("WFail to parse")));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Longer than what is decoded anew.
    check("<?xml version='1.0'" + QByteArray(1005, ' ') + "@?><smil><head/><body/></smil>", bytes);
#endif
    // Known to Qt 5, but not in other letter case.
    const QByteArray named = "<?xml version='1.0' encoding='Apple Roman'?><smil><head/><body/></smil>";
    QCOMPARE(read(named), readDirectly(named));
}

void Hostile::marksInNames()
{
    const QByteArray bom = "\xef\xbb\xbf";
    const QByteArray type = "<!DOCTYPE smil [<!ENTITY e ''><!ENTITY " + bom + "e '" + QByteArray(1000, 'z') + "'>]>";
    const QByteArray body = ("&" + bom + "e;").repeated(100) + "</body></smil>";
    QVERIFY(read(type + "<smil><head/><body>" + body).startsWith(QStringLiteral("WFail to parse")));
}

void Hostile::generated()
{
    std::mt19937 random(1);
    int wellFormed = 0;
    for (int i = 0; i < 4000; ++i) {
        const QByteArray text = anyDocument(random);
        const QByteArray bytes = i % 3 ? utf8(text) : wide(text, 2, i & 1, i & 2);
        const QString expected = readDirectly(bytes);
        wellFormed += !expected.contains(QStringLiteral(" parse "));
        QVERIFY2(read(bytes) == expected, text.constData());
    }
    QVERIFY(wellFormed > 500);
}

QTEST_GUILESS_MAIN(Hostile)

#include "hostile.moc"
