// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include <QtCore/QByteArrayList>
#include <QtCore/qnumeric.h>
#include <QtCore/QStringView>

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
struct Metric {
    QStringView name;
    int milliseconds;
};

const Metric metrics[] = {
    {u"h", 3600000}, {u"min", 60000}, {u"s", 1000}, {u"ms", 1}, {u"", 1000},
};
}

static QStringView trimmed(QStringView text)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; };
    while (!text.isEmpty() && isBlank(text.front())) {
        text = text.mid(1);
    }
    while (!text.isEmpty() && isBlank(text.back())) {
        text.chop(1);
    }
    return text;
}

/** Takes @p mark off the beginning of @p text, if it is there. */
static bool take(QStringView &text, QChar mark)
{
    if (text.isEmpty() || text.front() != mark) {
        return false;
    }
    text = text.mid(1);
    return true;
}

/** Takes the digits, of which there may be none, off the beginning of @p text. */
static QByteArray takeDigits(QStringView &text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const QByteArray digits = text.left(end - text.begin()).toLatin1();
    text = text.mid(digits.size());
    return digits;
}

static bool isBelowSixty(const QByteArray &digits)
{
    return digits.size() == 1 || (digits.size() == 2 && digits.at(0) < '6');
}

/** Whether these may stand with colons between them: only the first of three, or of one, is as large as it likes. */
static bool areFields(const QByteArrayList &fields)
{
    const int any = fields.size() == 2 ? 0 : 1;
    return !fields.first().isEmpty() && std::all_of(fields.begin() + any, fields.end(), isBelowSixty);
}

/** The number times @p factor plus @p summand, which are less than ten million: exact, however many digits it has. */
static QByteArray multiplyAdd(const QByteArray &digits, int factor, int summand)
{
    QByteArray result = QByteArray(7, '0') + digits;
    int carry = summand;
    for (auto digit = std::rbegin(result); digit != std::rend(result); ++digit) {
        carry += (*digit - '0') * factor;
        *digit = char('0' + carry % 10);
        carry /= 10;
    }
    return result;
}

/** Rounded once. What is too small for a double becomes 0, what is too large infinity. */
static double toSeconds(const QByteArray &thousandths, int decimals)
{
    // Nearly all are whole seconds, and Qt's conversion of a number with an exponent would be most of the work.
    bool isSmall = false;
    const qint64 small = decimals == 0 ? thousandths.toLongLong(&isSmall) : 0;
    if (isSmall && small % 1000 == 0) {
        return double(small / 1000);
    }
    return QString::fromLatin1(thousandths + 'e' + QByteArray::number(-3 - decimals)).toDouble();
}

bool SmilUnit::convertClock(const QString &text)
{
    QStringView rest = trimmed(text);
    QByteArrayList fields = {takeDigits(rest)};
    while (fields.size() < 3 && take(rest, u':')) {
        fields.append(takeDigits(rest));
    }
    const bool hasDecimals = take(rest, u'.');
    const QByteArray decimals = hasDecimals ? takeDigits(rest) : QByteArray();
    if (!areFields(fields) || hasDecimals == decimals.isEmpty()) {
        return false;
    }
    const auto metric = std::find_if(std::begin(metrics), std::end(metrics), [=](auto &m) { return m.name == rest; });
    if (metric == std::end(metrics) || (fields.size() > 1 && !rest.isEmpty())) {
        return false;
    }

    QByteArray number = fields.takeFirst();
    for (const QByteArray &sixtieths : std::as_const(fields)) {
        number = multiplyAdd(number, 60, sixtieths.toInt());
    }
    const QByteArray thousandths = multiplyAdd(number + decimals, metric->milliseconds, 0);
    const double seconds = toSeconds(thousandths, int(decimals.size()));
    if (!qIsFinite(seconds)) {
        return false;
    }
    unit = Sec;
    value = seconds;
    return true;
}
