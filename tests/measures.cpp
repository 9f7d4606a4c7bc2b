// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

#include <limits>
#include <random>
#include <vector>

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data();
    void texts();
    void leavesTheTextAlone();
    void oddKinds();
    void clocks_data();
    void clocks();
    void clockNumbers();
    void clockGrammar();
};

void Measures::texts_data()
{
    QTest::addColumn<QString>("from"); // the text that the measure is built from,
    QTest::addColumn<QString>("text"); // the text that it converts then, unless "-",
    QTest::addColumn<QString>("expected"); // and its unit and number after that
    QTest::addColumn<QString>("printed");

    addCases("measures.txt");
    QTest::newRow("blank") << " "
                           << "-"
                           << "6 0" << QString();
    QTest::newRow("empty") << ""
                           << "-"
                           << "6 0" << QString();
    QTest::newRow("12px, then empty") << "12px"
                                      << ""
                                      << "3 12"
                                      << "12px";
}

void Measures::texts()
{
    QFETCH(QString, from);
    QFETCH(QString, text);
    QFETCH(QString, printed);
    SmilUnit measure(from);
    QCOMPARE(measure.valid, !printed.isNull());
    if (text != QStringLiteral("-")) {
        QCOMPARE(measure.convert(text), !text.isEmpty() && printed != QStringLiteral("0"));
        QCOMPARE(measure.valid, !printed.isNull()); // as it was
    }
    QTEST(QStringLiteral("%1 %2").arg(measure.unit).arg(measure.value, 0, 'g', 12), "expected");
    QCOMPARE(measure.toString(), printed);
    QCOMPARE(measure.toString().isNull(), printed.isNull());
}

// A text of raw data has nothing behind its last character, and ending it would copy it: into the host's constant.
void Measures::leavesTheTextAlone()
{
    for (const char16_t *const digits : {u"12px", u"123456789", u"5", u"5000ms", u"1.5in"}) {
        const std::u16string characters(digits);
        const std::vector<QChar> unended(characters.begin(), characters.end());
        const QString text = QString::fromRawData(unended.data(), int(unended.size()));
        SmilUnit(text).toString();
        QVERIFY2(text.constData() == unended.data(), qPrintable(QStringLiteral("copied: ") + text));
    }
}

void Measures::oddKinds()
{
    for (int kind : {7, -1, std::numeric_limits<int>::min()}) {
        SmilUnit measure(QStringLiteral("5"));
        measure.unit = kind;
        QVERIFY(measure.toString().isNull());
    }
}

/** Converts @p text, behind whose last character there is nothing, not even a null. */
static bool convertClock(SmilUnit &measure, const QString &text)
{
    const std::vector<QChar> characters(text.begin(), text.end());
    return measure.convertClock(QString::fromRawData(characters.data(), int(characters.size())));
}

static QString exact(double value)
{
    return QString::number(value, 'g', 17);
}

void Measures::clocks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("seconds"); // null when it is no clock value

    addCases("clocks.txt");
    const auto many = [](char digit, int count) { return QString(count, QLatin1Char(digit)); };
    QTest::newRow("white space") << " \t\r\n 1:30 \n\r\t "
                                 << "90";
    QTest::newRow("only white space") << " \n" << QString();
    QTest::newRow("tab inside") << "5\ts" << QString();
    QTest::newRow("form feed before") << "\f5s" << QString();
    QTest::newRow("no-break space after") << QStringLiteral("5s\u00a0") << QString();
    QTest::newRow("null character after") << QString(QStringLiteral("5s") + QChar(0)) << QString();
    QTest::newRow("digits that are not ASCII's") << QStringLiteral("\u0665s") << QString();
    QTest::newRow("wide digits") << QStringLiteral("\uff15s") << QString();
    QTest::newRow("a million zeros of hours") << many('0', 1000000) + QStringLiteral("1:00:01") << "3601";
    QTest::newRow("a million decimals") << QStringLiteral("0.") + many('3', 1000000) << "0.33333333333333333";
    QTest::newRow("a million digits and decimals")
        << many('9', 1000000) + QLatin1Char('.') + many('9', 1000000) << QString();
    QTest::newRow("beyond a double") << QLatin1Char('1') + many('0', 309) << QString();
    QTest::newRow("beyond a double but for its unit")
        << QLatin1Char('1') + many('0', 309) + QStringLiteral("ms") << "1e306";
    QTest::newRow("beyond a double with its unit")
        << QLatin1Char('1') + many('0', 306) + QStringLiteral("h") << QString();
    QTest::newRow("below a double but for its unit")
        << QStringLiteral("0.") + many('0', 323) + QStringLiteral("1h") << "3.6e-321";
    QTest::newRow("below a double") << QStringLiteral("0.") + many('0', 330) + QStringLiteral("1s") << "0";
}

void Measures::clocks()
{
    QFETCH(QString, text);
    QFETCH(QString, seconds);
    for (const bool valid : {false, true}) {
        SmilUnit measure(QStringLiteral("7px"));
        measure.valid = valid;
        QCOMPARE(convertClock(measure, text), !seconds.isNull());
        QCOMPARE(measure.valid, valid);
        QCOMPARE(measure.unit, int(seconds.isNull() ? SmilUnit::Px : SmilUnit::Sec));
        QCOMPARE(exact(measure.value), exact(seconds.isNull() ? 7 : seconds.toDouble()));
    }
}

/** A clock value, and what it is: @p numerator / @p denominator seconds, both integers below 2^53. */
static QString anyClock(std::mt19937 &random, qint64 &numerator, qint64 &denominator)
{
    struct Unit {
        QString name;
        int milliseconds;
    };
    static const QList<Unit> units = {
        {QStringLiteral("h"),   3600000},
        {QStringLiteral("min"), 60000  },
        {QStringLiteral("s"),   1000   },
        {QStringLiteral("ms"),  1      },
        {QString(),             1000   },
    };
    const auto any = [&](int bound) { return int(random() % uint(bound)); };
    const auto written = [&](int number, int longest) {
        return QStringLiteral("%1").arg(number, 1 + any(longest), 10, QLatin1Char('0'));
    };
    QString text;
    qint64 whole = 0;
    Unit unit{QString(), 1000};
    const int kind = any(3);
    if (kind == 0) {
        unit = units.at(any(int(units.size())));
        whole = any(1000);
        text = written(int(whole), 9);
    } else {
        const int hours = kind == 1 ? 0 : any(2000);
        const int minutes = any(60);
        const int seconds = any(60);
        whole = (hours * 60ll + minutes) * 60 + seconds;
        text = (kind == 1 ? QString() : written(hours, 9) + QLatin1Char(':')) + written(minutes, 2) + QLatin1Char(':')
            + written(seconds, 2);
    }
    numerator = whole;
    denominator = 1000;
    const int decimals = any(7);
    for (int i = 0; i < decimals; ++i) {
        const int digit = any(10);
        text += (i == 0 ? QStringLiteral(".") : QString()) + QString::number(digit);
        numerator = numerator * 10 + digit;
        denominator *= 10;
    }
    numerator *= unit.milliseconds;
    return QString(any(3), QLatin1Char(' ')) + text + unit.name + QString(any(3), QLatin1Char('\n'));
}

void Measures::clockNumbers()
{
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        qint64 numerator = 0;
        qint64 denominator = 0;
        const QString text = anyClock(random, numerator, denominator);
        SmilUnit measure;
        QVERIFY2(convertClock(measure, text), qPrintable(text));
        // A double holds both, and the quotient is rounded once.
        const double expected = double(numerator) / double(denominator);
        QVERIFY2(measure.value == expected, qPrintable(text + QLatin1Char(' ') + exact(measure.value)));
    }
}

void Measures::clockGrammar()
{
    static const QRegularExpression clock(QRegularExpression::anchoredPattern(
        QStringLiteral("[ \t\r\n]*(([0-9]+:)?[0-5]?[0-9]:[0-5]?[0-9](\\.[0-9]+)?|[0-9]+(\\.[0-9]+)?(h|min|s|ms)?)"
                       "[ \t\r\n]*")));
    static const QStringList pieces =
        QStringLiteral("0~5~9~10~59~60~007~:~:~:~.~.~h~m~in~min~s~ms~M~ ~\n~-~e").split(QLatin1Char('~'));
    std::mt19937 random(1);
    int understood = 0;
    for (int i = 0; i < 20000; ++i) {
        QString text;
        for (uint left = 1 + random() % 7; left > 0; --left) {
            text += pieces.at(int(random() % uint(pieces.size())));
        }
        SmilUnit measure(QStringLiteral("7px"));
        const bool expected = clock.match(text).hasMatch();
        QVERIFY2(convertClock(measure, text) == expected, qPrintable(text));
        QVERIFY2((measure.unit == SmilUnit::Sec) == expected && (expected || measure.value == 7), qPrintable(text));
        understood += expected;
    }
    QVERIFY(understood > 1000);
}

QTEST_GUILESS_MAIN(Measures)

#include "measures.moc"
