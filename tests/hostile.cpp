// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "told.h"

class Hostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data() { addCases("hostile.txt"); }
    void documents();
    void encodings_data();
    void encodings();
    void outcomes_data();
    void outcomes();
    void decodedText_data() { addCases("decoded.txt"); }
    void decodedText();
    void surrogates_data() { addCases("surrogates.txt"); }
    void surrogates();
};

static const QString utf8 = QStringLiteral("UTF-8");
static const QString markedUtf16 = QStringLiteral("marked UTF-16LE");

/** The text in a form such as "bytes", which are characters up to U+00FF, or "marked UTF-16LE". */
static QByteArray encoded(const QString &text, const QString &form)
{
    const bool marked = form.startsWith(QLatin1String("marked"));
    return form == QLatin1String("bytes") ? text.toLatin1()
        : form.endsWith(utf8)
        ? (marked ? "\xef\xbb\xbf" : "") + text.toUtf8()
        : wide(text, form.contains(QLatin1String("32")) ? 4 : 2, form.endsWith(QLatin1String("BE")), marked);
}

static QString read(const QByteArray &input, SmilParser::ReadOptions options = SmilParser::AsWritten)
{
    QString told;
    onSmallStack([&] { told = toldByLibrary(input, options); });
    return told;
}

static QString orError(const QString &told)
{
    return isRefused(told) ? QStringLiteral("an error") : told;
}

/** A "¶" in the text marks where the document is cut off. Without one, the library changes nothing. */
static void check(const QString &text, const QString &form = utf8)
{
    const QStringList parts = text.split(QChar(0xb6));
    const QString expected = toldByReaderAlone(encoded(parts.first(), form));
    COMPARE_SEEN(QStringLiteral("reads, in %1, ").arg(form) + text, read(encoded(parts.join(QString()), form)),
                 expected);
    QVERIFY2(parts.size() == 1 || isRefused(expected), "what is left reads as if it were complete");
}

void Hostile::documents()
{
    QFETCH(QString, text);
    const QStringList parts = text.split(QLatin1Char('|'));
    check(parts.join(QString()));
    if (parts.size() > 1) {
        const QString within = parts.first() + parts.last();
        check(within);
        QVERIFY2(!isRefused(read(within.toUtf8())), "what is within the limits is refused");
    }
}

void Hostile::encodings_data()
{
    addCases("encodings.txt");
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0) // whose reader refuses the second text itself
    QTest::newRow("ISO-2022-JP") << "bytes"
                                 << "<?xml version='1.0' encoding='ISO-2022-JP'?>"
                                 << "<x>\x1b$B</x>\x1b(B"
                                 << "\x1b$B<x>>\x1b(B";
#endif
}

void Hostile::encodings()
{
    QFETCH(QString, form);
    QFETCH(QString, declaration);
    QFETCH(QString, open);
    QFETCH(QString, flat);
    if (open.isNull()) {
        open = QStringLiteral("<x a='/>' b=\"'>\">\n<!-- </x> --><![CDATA[</x>]]]]><?p </x>?>\u00e9");
        flat = QStringLiteral("<!--<x>--><![CDATA[<x>]]><?p <x>?><x a='/' b='>'></x\n>\u00e9");
    }
    const QString start = declaration + QStringLiteral("<!DOCTYPE smil SYSTEM ']>[<x>'><smil><head/><body>");
    check(start + open.repeated(200) + expanded(QStringLiteral("{310*<x>}\u00b6<x>")), form);
    check(start + flat.repeated(600) + QStringLiteral("</body></smil>"), form);
    check(declaration + expanded(QStringLiteral("<smil><head/><body>{600*<x></x>}</body></smil>")), form);
    QVERIFY2(!isRefused(read(encoded(declaration + QStringLiteral("<smil/>"), form))), "nothing can be read");
}

void Hostile::outcomes_data()
{
    addCases("outcomes.txt");
    // A letter that the DOM of Qt 6.11 does not know, and crashes on.
    const bool known = !QDomDocument().createEntityReference(QString(QChar(0x220))).isNull();
    QTest::newRow("new letter") << QStringLiteral("<!DOCTYPE smil SYSTEM 'u'><smil><head/><body>&\u0220;</body></smil>")
                                << utf8 << (known ? "read" : "read by Qt 5");
    // Characters that XML forbids. Qt 6 stops at each, Qt 5 reads the first two like any other and takes the last two
    // for the end of the document.
    for (const int character : {0, 1, 0xfffe, 0xffff}) {
        for (const char *place : {"%1", "<x a='%1'/>", "<!--%1-->", "<![CDATA[%1]]>", "<?p %1?>"}) {
            for (const QString &form : {utf8, markedUtf16}) {
                QTest::addRow("character %d in %s, %s", character, place, qPrintable(form))
                    << QStringLiteral("<smil><head/><body>%1</body></smil>")
                           .arg(QString::fromLatin1(place).arg(QChar(character)))
                    << form << (character < 2 ? "read by Qt 5" : "refused");
            }
        }
    }
}

/** What is read, the library does not change. Nothing is hidden behind what it refuses. */
void Hostile::outcomes()
{
    QFETCH(QString, text);
    QFETCH(QString, form);
    QFETCH(QString, outcome);
    const bool isRead = outcome == QLatin1String("read")
        || (outcome == QLatin1String("read by Qt 5") && QT_VERSION < QT_VERSION_CHECK(6, 0, 0));
    const QString told = read(encoded(text, form));
    const QString reads = QStringLiteral("reads, in %1, ").arg(form) + text;
    COMPARE_SEEN(reads, orError(told), isRead ? toldByReaderAlone(encoded(text, form)) : QStringLiteral("an error"));
    text.replace(QStringLiteral("</body>"), expanded(QStringLiteral("{600*<x>}{600*</x>}</body>")));
    QVERIFY2(isRefused(read(encoded(text, form))), "with 600 levels behind that, it is read");
}

/** Whatever is declared, a host sees what it would if that were UTF-8: an error for an error. */
void Hostile::decodedText()
{
    QFETCH(QString, declaration);
    QFETCH(QString, counterpart);
    const QString reads = QStringLiteral("reads, with DecodedText, ");
    for (const QByteArray title :
         {"caf\xc3\xa9", "caf\xff", "+AOk-", "\xed\xa0\x80", "a\xef\xbb\xbf", "a'/><body/></smil>\xff"}) {
        for (const QByteArray mark : {"", "\xef\xbb\xbf"}) {
            const QByteArray text = "<smil><head title='" + title + "'/><body></body></smil>";
            COMPARE_SEEN(reads + declaration + QString::fromLatin1(mark + text),
                         orError(read(mark + declaration.toUtf8() + text, SmilParser::DecodedText)),
                         orError(toldByReaderAlone(mark + counterpart.toUtf8() + text)));
        }
    }
    const QByteArray deep = "<smil><head/><body>" + QByteArray("<x>").repeated(600);
    QVERIFY2(isRefused(read(declaration.toUtf8() + deep, SmilParser::DecodedText)), "600 levels are read");
    const QByteArray utf16 = wide(declaration + QStringLiteral("<smil><head/><body/></smil>"), 2, false, true);
    QVERIFY2(isRefused(read(utf16, SmilParser::DecodedText)), "UTF-16 is read as if it were UTF-8");
}

// Half a surrogate pair is no character either: Qt 6.4 and 6.8 make it "?", and Qt 6.11 crashes on it. Qt 6 would drop
// a second byte order mark.
void Hostile::surrogates()
{
    QFETCH(QString, inside);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, title);
    const QString text =
        QStringLiteral("<smil><head title='%1'/><body><!--%1--><?p %1><x>?><![CDATA[%1]]>%1</body></smil>").arg(inside);
    Messages messages;
    SmilParser parser(encoded(before + text + after, markedUtf16));
    QCOMPARE(parser.parse().header.title, title);
}

QTEST_GUILESS_MAIN(Hostile)

#include "hostile.moc"
