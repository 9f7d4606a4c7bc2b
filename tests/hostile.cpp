// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "guardtesthelpers.h"

class Hostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data();
    void documents();
    void encodings_data();
    void encodings();
    void outcomes_data();
    void outcomes();
    void decodedText_data();
    void decodedText();
    void surrogates_data() { addCases("surrogates.txt"); }
    void surrogates();
};

static const QString utf8 = QStringLiteral("UTF-8");
static const QString markedUtf16 = QStringLiteral("marked UTF-16LE");
static const QByteArray head = "<smil><head/><body>";
static const QByteArray tail = "</body></smil>";

static QByteArray times(int number, const QByteArray &text)
{
    return text.repeated(number);
}

/** @p text as often, each time with the next number in the place of "#". */
static QByteArray numbered(int number, const QByteArray &text)
{
    QByteArray all;
    for (int i = 0; i < number; ++i) {
        all += QByteArray(text).replace('#', QByteArray::number(i));
    }
    return all;
}

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

/** Of these bytes, the reader gets @p within. */
static void check(const QByteArray &bytes, const QByteArray &within)
{
    const QString expected = toldByReaderAlone(within);
    COMPARE_SEEN(QStringLiteral("reads ") + QString::fromUtf8(bytes), read(bytes), expected);
    QVERIFY2(bytes == within || isRefused(expected), "what is left reads as if it were complete");
}

void Hostile::documents_data()
{
    QTest::addColumn<QByteArray>("within"); // the limits: what the reader gets
    QTest::addColumn<QByteArray>("beyond"); // what follows that
    QTest::addColumn<bool>("isRead");
    const auto whole = [](const char *name, const QByteArray &text) {
        QTest::newRow(name) << text << QByteArray() << true;
    };
    const auto cut = [](const QByteArray &name, const QByteArray &within, const QByteArray &beyond) {
        QTest::newRow(name.constData()) << within << beyond << false;
    };
    const QByteArray name = times(4096, "n"); // as long as one may be
    const QByteArray longTag = "<x a='" + times(392, "y") + '\'';
    const QByteArray typed = "<!DOCTYPE smil SYSTEM 'u'>" + head;

    whole("as deep as may be", head + times(510, "<x>") + times(510, "</x>") + tail);
    whole("as deep and long as may be", head + times(29, "<x>") + times(100000, "<x/>") + times(29, "</x>") + tail);
    whole("all that may be in tags",
          head + "<x" + numbered(64, " a#=''") + "/>" + numbered(600, "<x a#='' b='/'/><x a='>' b=''/>") + '<' + name
              + ' ' + name + "='" + times(90000, "n") + "'/><?" + name + "?><x" + times(5000, " \t\r\n") + "a=''/>"
              + tail);
    whole("name of four bytes each", head + "<x " + times(2048, "\U0001d48f") + "=''/>" + tail);
    whole("tags in other markup",
          head + times(600, "<!-- <x> --><?p <x>?><![CDATA[<x>]]>") + times(600, "<!--x--><?p x?><x/>") + tail);
    whole("references",
          typed + "<!-- &@; --><![CDATA[&@;]]><?p &@;?>&\u00e9;&_-.1\u00b7;&#65;&#x41;&amp;&#" + times(5000, "0")
              + "65;" + tail);

    cut("too deep", "<smil>\n<head/><body>" + times(510, "<x>\n"), times(200000, "<x>\n"));
    cut("in and out",
        head + times(509, "<x>") + times(300, "<x></x><x/>")
            + times(3, longTag + "></x" + times(300, " ") + '>' + longTag + "/>") + "<x>",
        "<x>");
    cut("deep on average, to the last byte", head + times(61, "<x>") + times(66480, "t") + "</x>",
        times(60, "</x>") + tail);
    cut("deep in short tags", head + times(100, "<x>") + times(10242, "<x/>"), times(10000, "<x/>"));
    cut("deep in long tags", head + times(100, "<x>") + times(103, longTag + "/>"), times(200, longTag + "/>"));
    cut("deep references", head + times(100, "<x>") + times(10242, "&lt;"), times(10000, "&lt;"));
    cut("too deep and long for 32 bits", head + times(500, "<x>") + times(4300000, "t"), times(500, "</x>") + tail);
    cut("attributes", head + "<x a='>' b=\"&lt;\"" + numbered(62, " c#=''") + " d='", "'/>" + tail);
    cut("quoted ends of empty tags", head + times(510, "<x a='/>' b=''>"), times(600, "<x a='/>' b=''>"));
    cut("end tags in other markup",
        head + "<!----><![CDATA[]]><?p?>" + times(200, "<x><!-- </x> --><!--> </x>--><!---> </x>-->")
            + times(200, "<x><?p > </x>?><![CDATA[]] > </x>]]>") + times(110, "<x>"),
        "<x>");
    cut("markup without end", head + "<!--" + times(600, "<x>"), "");
    cut("document type with identifiers", "<!DOCTYPE smil PUBLIC \"[p]>\" '>[u'>" + head + times(510, "<x>"), "<x>");
    for (const QByteArray &before : {QByteArray("<!DOCTYPE smil SYSTEM \"'\" "), head + "<!DOCTYPE smil "}) {
        cut("internal subset: " + before, before, "[<!ENTITY a 'x'>]>" + head + tail);
    }
    for (const char *const before : {"<", "<x ", "<?", "</", "&", "<!DOCTYPE "}) {
        cut(QByteArray("long name: ") + before, (*before == '<' && before[1] == '!' ? "" : head) + before,
            'n' + name + "/>" + tail);
    }
    cut("long name of four bytes each", head + "<x ", times(2048, "\U0001d48f") + "a\" =''/>" + tail);
    for (const char *const reference : {"@;", "1;", "a\u00d7;"}) {
        cut(QByteArray("reference: ") + reference, typed + '&', reference + tail);
    }
    cut("reference in an attribute", typed + "<x a='&lt;&", "@;'/>" + tail);
    cut("reference outside", head + tail + '&', "@;");
    cut("reference that does not end", head + "&1 " + tail, "");
    cut("reference with a colon", typed + "&a:;" + tail, "");
    for (const QByteArray &character : {QByteArray(1, '\0'), QByteArray("\x01"), QByteArray("\xef\xbf\xbf")}) {
        cut("after the root: " + character.toHex(), head + tail + character, "");
    }
}

void Hostile::documents()
{
    QFETCH(QByteArray, within);
    QFETCH(QByteArray, beyond);
    QFETCH(bool, isRead);
    const QString expected = toldByReaderAlone(within);
    // Without anything beyond the limits, Qt 5 refuses and reads other texts than Qt 6.
    const bool differs = beyond.isEmpty() && QT_VERSION < QT_VERSION_CHECK(6, 0, 0);
    QVERIFY2(differs || isRead != isRefused(expected),
             "what is left reads as if it were complete, or the test is no good");
    COMPARE_SEEN(QStringLiteral("reads ") + QString::fromUtf8(within + beyond), read(within + beyond), expected);
}

void Hostile::encodings_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("open"); // opens one level
    QTest::addColumn<QByteArray>("flat"); // opens none
    const QByteArray open = "<x a='/>' b=\"'>\">\n<!-- </x> --><![CDATA[</x>]]]]><?p </x>?>\xe9";
    const QByteArray flat = "<!--<x>--><![CDATA[<x>]]><?p <x>?><x a='/' b='>'></x\n>\xe9";
    for (const char *const form : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
        for (const char *const mark : {"", "marked "}) {
            QTest::addRow("%s%s", mark, form)
                << QString::fromLatin1(QByteArray(mark) + form) << QByteArray() << open << flat;
        }
    }
    const auto bytes = [](const char *name, const QByteArray &opening, const QByteArray &level) {
        QTest::newRow(name) << "bytes" << QByteArray("<?xml version='1.0' encoding='") + name + "'?>" << opening
                            << level;
    };
    bytes("ISO-8859-1", open, flat);
    // Taken for ASCII, these show other markup.
    bytes("UTF-7", "+ADw-x+AD4-", "+ADw-x/+AD4-");
    bytes("GBK", "<x><![CDATA[\x81]]></x>]]>", "<![CDATA[\x81]]><x>]]>");
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0) // whose reader refuses the second text itself
    bytes("ISO-2022-JP", "<x>\x1b$B</x>\x1b(B", "\x1b$B<x>>\x1b(B");
#endif
}

void Hostile::encodings()
{
    QFETCH(QString, form);
    QFETCH(QByteArray, declaration);
    QFETCH(QByteArray, open);
    QFETCH(QByteArray, flat);
    const auto bytes = [&](const QByteArray &text) { return encoded(QString::fromLatin1(declaration + text), form); };
    const QByteArray start = "<!DOCTYPE smil SYSTEM ']>[<x>'>" + head;
    const QByteArray deepest = start + open.repeated(200) + times(310, "<x>");
    check(bytes(deepest + "<x>"), bytes(deepest));
    for (const QByteArray &text : {start + flat.repeated(600) + tail, head + times(600, "<x></x>") + tail}) {
        check(bytes(text), bytes(text));
    }
    QVERIFY2(!isRefused(read(bytes("<smil/>"))), "nothing can be read");
}

void Hostile::outcomes_data()
{
    addCases("outcomes.txt");
    for (const int size : {1024, 1025}) {
        QTest::addRow("declaration: %d bytes", size)
            << QString::fromLatin1("<?xml version='1.0'" + times(size - 21, " ") + "?>" + head + tail) << utf8
            << (size == 1024 ? "read" : "refused");
    }
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

/** What is read, the library does not change. Nothing is hidden after what it refuses. */
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
    text.replace(QStringLiteral("</body>"), QString::fromLatin1(times(600, "<x>") + times(600, "</x>") + tail));
    QVERIFY2(isRefused(read(encoded(text, form))), "with 600 levels after that, it is read");
}

/** Whatever is declared, a host sees what it would if that were UTF-8: an error for an error. */
void Hostile::decodedText_data()
{
    QTest::addColumn<QByteArray>("declaration");
    QTest::addColumn<QByteArray>("counterpart"); // what it is read as
    const QByteArray xml = "<?xml version='1.0' encoding='";
    for (const char *const encoding : {"UTF8", "ISO-8859-1", "GBK", "UTF-7", "UTF-16", "x"}) {
        QTest::newRow(encoding) << xml + encoding + "'?>" << xml + "UTF-8'?>";
        QTest::addRow("%s in an instruction", encoding)
            << QByteArray("<?xml-a encoding='") + encoding + "'?>" << QByteArray("<?a?>");
    }
    QTest::newRow("none") << QByteArray() << QByteArray();
    QTest::newRow("two") << xml + "x' title='encoding'?>" << xml + "UTF-8' title=''?>";
    QTest::newRow("end far away") << xml + "GBK'" + times(2000, " ") + "?>" << xml + "UTF-8'?>";
    QTest::newRow("cut off") << xml + "GBK'" << xml + "UTF-8'";
}

void Hostile::decodedText()
{
    QFETCH(QByteArray, declaration);
    QFETCH(QByteArray, counterpart);
    const QString reads = QStringLiteral("reads, with DecodedText, ");
    for (const QByteArray title :
         {"caf\xc3\xa9", "caf\xff", "+AOk-", "\xed\xa0\x80", "a\xef\xbb\xbf", "a'/><body/></smil>\xff"}) {
        for (const QByteArray mark : {"", "\xef\xbb\xbf"}) {
            const QByteArray text = "<smil><head title='" + title + "'/><body></body></smil>";
            COMPARE_SEEN(reads + QString::fromLatin1(mark + declaration + text),
                         orError(read(mark + declaration + text, SmilParser::DecodedText)),
                         orError(toldByReaderAlone(mark + counterpart + text)));
        }
    }
    QVERIFY2(isRefused(read(declaration + head + times(600, "<x>"), SmilParser::DecodedText)), "600 levels are read");
    const QByteArray utf16 = encoded(QString::fromLatin1(declaration + head + tail), markedUtf16);
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
