// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "modeldump.h"

#include <limits>
#include <vector>

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data() { addCases("measures.txt"); }
    void texts();
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

/** What converting one text after another makes of a measure; a null text and an empty one change nothing. */
void Measures::conversions()
{
    const auto converted = [](const char *first, const char *next) {
        SmilUnit measure(QString::fromLatin1(first));
        const bool isUnderstood = measure.convert(QString::fromLatin1(next));
        return (isUnderstood ? QStringLiteral("true: ") : QStringLiteral("false: ")) + seen(measure);
    };
    QCOMPARE(converted("12px", "3s"), QStringLiteral("true: 3 s, prints 3s"));
    QCOMPARE(converted("12px", "5ms"), QStringLiteral("false: 0 no unit, prints 0"));
    QCOMPARE(converted("12px", "1e400s"), QStringLiteral("false: 0 no unit, prints 0"));
    QCOMPARE(converted("12px", ""), QStringLiteral("false: 12 px, prints 12px"));
    QCOMPARE(converted("5%", nullptr), QStringLiteral("false: 5 %, prints 5%"));
    QCOMPARE(converted(nullptr, "7"), QStringLiteral("true: 7 px, prints nothing"));
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
    const auto many = [](const char *before, int number, char digit, const char *after) {
        return QString::fromLatin1(before) + QString(number, QLatin1Char(digit)) + QString::fromLatin1(after);
    };
    QTest::newRow("a million zeros of hours") << many("", 1000000, '0', "1:00:01") << "3601";
    QTest::newRow("a million decimals") << many("0.", 1000000, '3', "") << "0.33333333333333333";
    QTest::newRow("a million digits") << many("", 1000000, '9', ".9") << "no clock value";
    QTest::newRow("beyond a double without its unit") << many("1", 309, '0', "ms") << "1e306";
    QTest::newRow("beyond a double with its unit") << many("1", 306, '0', "h") << "no clock value";
    QTest::newRow("below a double without its unit") << many("0.", 323, '0', "1h") << "3.6e-321";
    QTest::newRow("below a double") << many("0.", 330, '0', "1s") << "0";
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
