// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "outline.h"

#include <cmath>
#include <limits>
#include <random>
#include <vector>

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data() { addCases("measures.txt"); }
    void texts();
    void leavesTheTextAlone();
    void oddKinds();
    void clocks_data() { addCases("clocks.txt"); }
    void clocks();
    void anyClocks();
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

// Ending such a text would copy it: into the host's constant.
void Measures::leavesTheTextAlone()
{
    for (const char *const digits : {"12px", "123456789", "5", "5000ms", "1.5in"}) {
        const Unended unended(QString::fromLatin1(digits));
        SmilUnit(unended.text).toString();
        QVERIFY2(unended.text.constData() == unended.characters.data(), digits);
    }
}

void Measures::oddKinds()
{
    for (const int kind : {7, -1, std::numeric_limits<int>::min()}) {
        SmilUnit measure(QStringLiteral("5"));
        measure.unit = kind;
        QVERIFY2(measure.toString().isNull(), qPrintable(measure.toString()));
    }
}

/** What a host sees that has 7 pixels, valid or not, and converts a clock value. */
static QString seenOfClock(const QString &text, bool valid = true)
{
    SmilUnit measure(QStringLiteral("7px"));
    measure.valid = valid;
    const bool understood = measure.convertClock(Unended(text).text);
    return seen(understood, measure);
}

static QString expectedOfClock(bool understood, double seconds, bool valid = true)
{
    SmilUnit measure(understood ? QStringLiteral("7s") : QStringLiteral("7px"));
    measure.value = understood ? seconds : 7;
    measure.valid = valid;
    return seen(understood, measure);
}

void Measures::clocks()
{
    QFETCH(QString, text);
    QFETCH(QString, seconds);
    for (const bool valid : {false, true}) {
        COMPARE_SEEN(QStringLiteral("has 7 pixels and converts ") + text, seenOfClock(text, valid),
                     expectedOfClock(!seconds.isNull(), seconds.toDouble(), valid));
    }
}

void Measures::anyClocks()
{
    static const QRegularExpression clock(QRegularExpression::anchoredPattern(QStringLiteral(
        "[ \t\r\n]*(?:(?:([0-9]+):)?([0-5]?[0-9]):([0-5]?[0-9](?:\\.[0-9]+)?)|([0-9]+(?:\\.[0-9]+)?)(h|min|s|ms)?)[ "
        "\t\r\n]*")));
    static const QStringList pieces =
        QStringLiteral("0~5~9~10~59~60~007~:~:~:~.~.~h~m~in~min~s~ms~M~ ~\n~-~e").split(QLatin1Char('~'));
    static const QMap<QString, double> thousandths = {
        {QStringLiteral("h"),   3600000},
        {QStringLiteral("min"), 60000  },
        {QStringLiteral("ms"),  1      }
    };
    std::mt19937 random(1);
    int understood = 0;
    for (int i = 0; i < 30000; ++i) {
        QString text;
        for (uint left = 1 + random() % 7; left > 0; --left) {
            text += pieces.at(int(random() % uint(pieces.size())));
        }
        const QRegularExpressionMatch match = clock.match(text);
        QString last = match.captured(3) + match.captured(4);
        const double decimals = std::pow(10, last.section(QLatin1Char('.'), 1).size());
        const double minutes = match.captured(1).toDouble() * 60 + match.captured(2).toDouble();
        const double number = minutes * 60 * decimals + last.remove(QLatin1Char('.')).toDouble();
        // Whole numbers below 2^53, which a double holds, so that their quotient is rounded once.
        const double numerator = number * thousandths.value(match.captured(5), 1000);
        if (numerator < 9e15) {
            COMPARE_SEEN(QStringLiteral("has 7 pixels and converts ") + text, seenOfClock(text),
                         expectedOfClock(match.hasMatch(), numerator / (decimals * 1000)));
        }
        understood += match.hasMatch();
    }
    QVERIFY(understood > 1000);
}

QTEST_GUILESS_MAIN(Measures)

#include "measures.moc"
