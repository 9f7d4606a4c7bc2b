// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "outline.h"

#include <limits>
#include <vector>

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data() { addCases("measures.txt"); }
    void texts();
    void leavesTheTextAlone();
    void equal();
    void clocks_data() { addCases("clocks.txt"); }
    void clocks();
};

/** What a host sees: whether a text was understood, what the measure holds, and what it prints. */
static QString seen(bool understood, const SmilUnit &measure)
{
    static const char *const units[] = {"pt", "in", "cm", "px", "%", "s", "no unit"};
    const QString printed = measure.toString();
    return QStringLiteral("%1, %2 %3, prints %4")
        .arg(QVariant(understood).toString(), QString::number(measure.value, 'g', QLocale::FloatingPointShortest),
             QLatin1String(units[measure.unit]), printed.isNull() ? QStringLiteral("nothing") : printed);
}

void Measures::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, next);
    QFETCH(QString, sees);
    SmilUnit measure(text);
    const bool result = next == QStringLiteral("-") ? measure.valid : measure.convert(next);
    COMPARE_SEEN(QStringLiteral("makes a measure of '%1' and converts '%2'").arg(text, next), seen(result, measure),
                 sees);
}

/** A text behind whose last character there is nothing, not even a null. */
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
    SmilUnit invalid(0, SmilUnit::NoUnit);
    invalid.valid = false;
    QVERIFY(invalid == SmilUnit() && invalid != SmilUnit(0, SmilUnit::NoUnit));
}

/** Into a measure of 7 pixels, valid or not, which it stays. */
void Measures::clocks()
{
    QFETCH(QString, text);
    QFETCH(QString, seconds);
    for (const bool valid : {false, true}) {
        SmilUnit expected(seconds.isNull() ? QStringLiteral("7px") : QStringLiteral("7s"));
        expected.value = seconds.isNull() ? 7 : seconds.toDouble();
        SmilUnit measure(QStringLiteral("7px"));
        measure.valid = expected.valid = valid;
        const bool understood = measure.convertClock(Unended(text).text);
        COMPARE_SEEN(QStringLiteral("has 7 pixels and converts ") + text, seen(understood, measure),
                     seen(!seconds.isNull(), expected));
    }
}

QTEST_GUILESS_MAIN(Measures)

#include "measures.moc"
