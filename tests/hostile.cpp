// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "told.h"

#include <memory>
#include <random>

class Hostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data() { addCases("hostile.txt"); }
    void documents();
    void encodings_data();
    void encodings();
    void declarations_data() { addCases("declarations.txt"); }
    void declarations();
    void characters_data();
    void characters();
    void surrogates_data() { addCases("surrogates.txt"); }
    void surrogates();
    void references_data();
    void references();
    void generated();
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

static QString outcomeOf(const QByteArray &input)
{
    return isRefused(read(input)) ? QStringLiteral("refused") : QStringLiteral("read");
}

/** What "read by Qt 5" is here: Qt 6 refuses that. */
static QString here(const QString &outcome)
{
    const bool isQt5 = QT_VERSION < QT_VERSION_CHECK(6, 0, 0);
    return outcome == QLatin1String("read by Qt 5") ? QLatin1String(isQt5 ? "read" : "refused") : outcome;
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
        COMPARE_SEEN(QStringLiteral("reads ") + within, outcomeOf(within.toUtf8()), QStringLiteral("read"));
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
    const QString end = QStringLiteral("</body></smil>");
    check(start + open.repeated(200) + expanded(QStringLiteral("{310*<x>}\u00b6<x>")), form);
    check(start + flat.repeated(600) + end, form);
    check(start + expanded(QStringLiteral("{600*<x></x>}")) + end, form);
    const QByteArray message = encoded(declaration + QStringLiteral("<smil><head/><body/></smil>"), form);
    COMPARE_SEEN(QStringLiteral("reads an empty message"), outcomeOf(message), QStringLiteral("read"));
    SmilParser parser(message);
    QString error;
    parser.parse();
    parser.parse(&error);
    QVERIFY2(!error.isNull(), "the input is read twice");
}

void Hostile::declarations()
{
    QFETCH(QString, declaration);
    QFETCH(QString, form);
    QFETCH(QString, outcome);
    const QByteArray message = encoded(declaration + QStringLiteral("<smil><head title='a'/><body/></smil>"), form);
    const QString reads = QStringLiteral("reads, in %1, %2").arg(form, declaration);
    COMPARE_SEEN(reads, outcomeOf(message), here(outcome));
    if (here(outcome) == QLatin1String("read")) {
        COMPARE_SEEN(reads, read(message), toldByReaderAlone(message));
    }
    COMPARE_SEEN(reads + QStringLiteral(" and 600 levels"),
                 outcomeOf(encoded(declaration + QStringLiteral("<x>").repeated(600), form)),
                 QStringLiteral("refused"));
}

void Hostile::characters_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("U+0000") << QString(QChar(0)) << "read by Qt 5";
    QTest::newRow("U+0001") << QString(QChar(1)) << "read by Qt 5";
    QTest::newRow("U+FFFE") << QString(QChar(0xfffe)) << "refused";
    QTest::newRow("U+FFFF") << QString(QChar(0xffff)) << "refused";
}

// Characters that XML forbids. Nothing is hidden behind one: Qt 6 stops at each, Qt 5 reads the first two like any
// other and takes the last two for the end of the document.
void Hostile::characters()
{
    QFETCH(QString, character);
    QFETCH(QString, outcome);
    const QString body = QStringLiteral("<smil><head/><body>%1</body></smil>");
    const QString levels = expanded(QStringLiteral("{600*<x>}{600*</x>}"));
    for (const char *place : {"%1", "<x a='%1'/>", "<!--%1-->", "<![CDATA[%1]]>", "<?p %1?>"}) {
        const QString text = QString::fromLatin1(place).arg(character);
        for (const QString &form : {utf8, markedUtf16}) {
            const QString reads = QStringLiteral("reads, in %1, %2").arg(form, QLatin1String(place));
            COMPARE_SEEN(reads, outcomeOf(encoded(body.arg(text), form)), here(outcome));
            COMPARE_SEEN(reads + QStringLiteral(" and 600 levels"), outcomeOf(encoded(body.arg(text + levels), form)),
                         QStringLiteral("refused"));
        }
    }
    check(body.arg(QString()) + character);
}

// Unpaired, they are no characters either: Qt 6.4 and 6.8 make them "?", and Qt 6.11 crashes on them. A second byte
// order mark Qt 6 would drop.
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

void Hostile::references_data()
{
    addCases("references.txt");
    // A letter that the DOM of Qt 6.11 does not know, and crashes on.
    const bool known = !QDomDocument().createEntityReference(QString(QChar(0x220))).isNull();
    QTest::newRow("new letter") << QStringLiteral("<!DOCTYPE smil SYSTEM 'u'><smil><head/><body>&\u0220;</body></smil>")
                                << (known ? "read" : "read by Qt 5");
}

void Hostile::references()
{
    QFETCH(QString, text);
    QFETCH(QString, outcome);
    COMPARE_SEEN(QStringLiteral("reads ") + text, outcomeOf(text.toUtf8()), here(outcome));
}

/** A small document, with and without a document type, and with up to two errors. */
static QString anyDocument(std::mt19937 &random)
{
    static const QStringList types = QStringLiteral("~<?xml version='1.0'?>\n<!-- <smil> -->~<!DOCTYPE smil>~"
                                                    "<!DOCTYPE smil SYSTEM 'u'>")
                                         .split(QLatin1Char('~'));
    static const QStringList pieces =
        QStringLiteral("<par a='>' b=\"'/\"/>~<seq dur='&a;'\n/>~<img src='&lt;&#65;'/>~<text region='&b;'/>~"
                       "<!-- </par> -->~<![CDATA[</par>]]>~<?p </par>?>~&a;~&b;~&#x41;~t~\n~\u00e9")
            .split(QLatin1Char('~'));
    static const QStringList errors = QStringLiteral("~<~>~&~'~\"~=~/~]~]]>~<!--~-->~<![CDATA[~<?~?>~<!DOCTYPE x>~<x/>~"
                                                     "</x>~&#0;~&u;~<?xml version='1.0'?>")
                                          .split(QLatin1Char('~'));
    const auto any = [&](const QStringList &list) { return list.at(int(random() % uint(list.size()))); };
    QString text;
    for (uint steps = random() % 12; steps > 0; --steps) {
        text += any(pieces);
        text = random() % 3 ? text : QStringLiteral("<par dur='2s'>%1</par>").arg(text);
    }
    text = QStringLiteral("<smil>\n<head/><body dur='1s'>%1</body></smil>").arg(text);
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
        const QString text = anyDocument(random);
        const QByteArray bytes = i % 3 ? text.toUtf8() : wide(text, 2, i & 1, true);
        const QString expected = toldByReaderAlone(bytes);
        wellFormed += !isRefused(expected);
        const QString told = read(bytes);
        // What stands behind an "&" may be beyond the limits where it is also an error.
        if (!text.contains(QLatin1Char('&')) || !isRefused(told) || !isRefused(expected)) {
            COMPARE_SEEN(QStringLiteral("reads ") + text, told, expected);
        }
    }
    QVERIFY(wellFormed > 500);
}

QTEST_GUILESS_MAIN(Hostile)

#include "hostile.moc"
