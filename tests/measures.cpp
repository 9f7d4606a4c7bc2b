// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "modeldump.h"

#include <limits>
#include <vector>

Q_DECLARE_METATYPE(SmilUnit)

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data() { addCases("measures.txt"); }
    void texts();
    void conversions_data();
    void conversions();
    void leavesTheTextAlone();
    void equal();
    void clocks_data();
    void clocks();
};

/** What the measure holds, and what it prints. */
static QString seen(const SmilUnit &measure)
{
    static const char *const units[] = {"pt", "in", "cm", "px", "%", "s", "no unit"};
    const QString printed = measure.toString();
    return QStringLiteral("%1 %2, prints %3")
        .arg(QString::number(measure.value, 'g', QLocale::FloatingPointShortest), QLatin1String(units[measure.unit]),
             printed.isNull() ? QStringLiteral("nothing") : printed);
}

void Measures::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, sees);
    const SmilUnit measure(text);
    const QString nothing = QStringLiteral("0 no unit, prints nothing");
    COMPARE_SEEN(QStringLiteral("makes a measure of '%1'").arg(text), seen(measure), measure.valid ? sees : nothing);
    QCOMPARE(measure.valid, sees != QLatin1String("not understood"));
}

void Measures::conversions_data()
{
    const auto row = [](const char *name, const char *first, const char *next, bool understood, const char *sees) {
        QTest::newRow(name) << SmilUnit(QString::fromLatin1(first)) << QString::fromLatin1(next) << understood
                            << QString::fromLatin1(sees);
    };
    QTest::addColumn<SmilUnit>("measure");
    QTest::addColumn<QString>("next");
    QTest::addColumn<bool>("understood");
    QTest::addColumn<QString>("sees");
    row("12px, then another unit", "12px", "3s", true, "3 s, prints 3s");
    row("12px, then letters", "12px", "5ms", false, "0 no unit, prints 0");
    row("12px, then an overflow", "12px", "1e400s", false, "0 no unit, prints 0");
    row("12px, then empty", "12px", "", false, "12 px, prints 12px");
    row("5%, then null", "5%", nullptr, false, "5 %, prints 5%");
    row("null, then a number", nullptr, "7", true, "7 px, prints nothing");
    row("empty, then nothing", "", nullptr, false, "0 no unit, prints nothing");
}

void Measures::conversions()
{
    QFETCH(SmilUnit, measure);
    QFETCH(QString, next);
    QFETCH(bool, understood);
    QFETCH(QString, sees);
    QCOMPARE(measure.convert(next), understood);
    QCOMPARE(seen(measure), sees);
}

/** A text after whose last character there is nothing, not even a null. */
struct Unended {
    explicit Unended(const QString &from)
        : characters(from.begin(), from.end())
        , text(QString::fromRawData(characters.data(), int(characters.size())))
    {
    }
    const std::vector<QChar> characters;
    const QString text;
};

// To end such a text, Qt would copy it, and put the copy into the host's constant.
void Measures::leavesTheTextAlone()
{
    for (const char *const digits : {"12px", "123456789", "5", "5000ms", "1.5in"}) {
        const Unended unended(QString::fromLatin1(digits));
        SmilUnit(unended.text).toString();
        QVERIFY2(unended.text.constData() == unended.characters.data(), digits);
    }
}

/** A copy is equal to its source, whatever a host has put into that; nothing is converted. */
void Measures::equal()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    SmilDocument model;
    model.header.layout.topLayoutWidth = SmilUnit(nan, SmilUnit::Px);
    model.header.title = QStringLiteral("");
    QVERIFY(SmilDocument(model) == model && model != SmilDocument());
    model.header.layout.topLayoutWidth = SmilUnit();
    QVERIFY(model == SmilDocument()); // one title is empty, one is null
    for (QString SmilBody::*spare : {&SmilBody::spare1, &SmilBody::spare2, &SmilBody::spare3, &SmilBody::spare4}) {
        SmilBody body;
        body.*spare = QStringLiteral("s");
        QVERIFY(body != SmilBody() && body == SmilBody(body));
    }
    model.header.spare = QStringLiteral("s");
    QVERIFY(model != SmilDocument());
    QVERIFY(SmilUnit(5, SmilUnit::Px) == SmilUnit(QStringLiteral("5px")));
    QVERIFY(SmilUnit(5, SmilUnit::NoUnit) != SmilUnit(5, SmilUnit::Px));
    QVERIFY(SmilUnit(nan, SmilUnit::Px) != SmilUnit(5, SmilUnit::Px));
    SmilUnit invalid(0, SmilUnit::NoUnit);
    invalid.valid = false;
    QVERIFY(invalid == SmilUnit() && invalid != SmilUnit(0, SmilUnit::NoUnit));
}

void Measures::clocks_data()
{
    addCases("clocks.txt");
    const QString none = QStringLiteral("no clock value");
    const auto many = [](int number, char digit) { return QString(number, QLatin1Char(digit)); };
    QTest::newRow("null") << QString() << none;
    QTest::newRow("a million zeros of hours") << many(1000000, '0') + QStringLiteral("1:00:01") << "3601";
    QTest::newRow("a million decimals") << QStringLiteral("0.") + many(1000000, '3') << "0.33333333333333333";
    QTest::newRow("a million digits and decimals") << many(1000000, '9') + u'.' + many(1000000, '9') << none;
    QTest::newRow("beyond a double") << u'1' + many(309, '0') << none;
    QTest::newRow("beyond a double without its unit") << u'1' + many(309, '0') + QStringLiteral("ms") << "1e306";
    QTest::newRow("beyond a double with its unit") << u'1' + many(306, '0') + u'h' << none;
    QTest::newRow("below a double without its unit")
        << QStringLiteral("0.") + many(323, '0') + QStringLiteral("1h") << "3.6e-321";
    QTest::newRow("below a double") << QStringLiteral("0.") + many(330, '0') + QStringLiteral("1s") << "0";
}

/** Into a measure of 7 pixels, valid or not, which it stays. */
void Measures::clocks()
{
    QFETCH(QString, text);
    QFETCH(QString, seconds);
    const bool isClock = seconds != QLatin1String("no clock value");
    for (const bool valid : {false, true}) {
        SmilUnit expected(isClock ? QStringLiteral("7s") : QStringLiteral("7px"));
        expected.value = isClock ? seconds.toDouble() : 7;
        SmilUnit measure(QStringLiteral("7px"));
        measure.valid = expected.valid = valid;
        QCOMPARE(measure.convertClock(Unended(text).text), isClock);
        COMPARE_SEEN(QStringLiteral("has 7 pixels and converts ") + text, seen(measure), seen(expected));
    }
}

QTEST_GUILESS_MAIN(Measures)

#include "measures.moc"
