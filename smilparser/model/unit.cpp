// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <iterator>

namespace
{
struct Suffix {
    QLatin1String text;
    SmilUnit::Unit unit;
};

// Looked for in this order, which is also that of the units' numbers: "3pxin" has the unit "in", and its "3px" is no
// number.
const Suffix suffixes[] = {
    {QLatin1String("pt"), SmilUnit::Pt}, {QLatin1String("in"), SmilUnit::In},     {QLatin1String("cm"), SmilUnit::Cm},
    {QLatin1String("px"), SmilUnit::Px}, {QLatin1String("%"), SmilUnit::Percent}, {QLatin1String("s"), SmilUnit::Sec},
};

enum class Outcome { Read, NoNumber, Undecided };
}

/** Reads up to nine digits and one suffix or none, as nearly all texts are, for a tenth of what readAny() takes. */
static Outcome readPlain(const QString &text, SmilUnit &measure)
{
    // Not utf16(): behind a host's text that has no null there, it puts one, in a copy or in place.
    const QChar *const begin = text.constData();
    const QChar *const end = begin + text.size();
    const QChar *const limit = begin + qMin<qint64>(text.size(), 9);
    const QChar *at = begin;
    int number = 0;
    for (; at != limit && at->unicode() >= '0' && at->unicode() <= '9'; ++at) {
        number = 10 * number + (at->unicode() - '0');
    }
    if (at == begin) {
        return Outcome::Undecided;
    }
    if (at != end && *at == QLatin1Char('m')) {
        return Outcome::NoNumber; // the milliseconds of many phones: no suffix begins with m, and no number contains it
    }
    for (const Suffix &suffix : suffixes) {
        if (std::equal(at, end, suffix.text.begin(), suffix.text.end(),
                       [](QChar a, char b) { return a == QLatin1Char(b); })) {
            measure.unit = suffix.unit;
            at = end;
            break;
        }
    }
    measure.value = number;
    return at == end ? Outcome::Read : Outcome::Undecided;
}

static bool readAny(const QString &text, SmilUnit &measure)
{
    auto length = text.size();
    for (const Suffix &suffix : suffixes) {
        const auto found = text.indexOf(suffix.text);
        if (found >= 0) {
            measure.unit = suffix.unit;
            length = found;
            break;
        }
    }
    bool understood = false;
    measure.value = text.left(length).toDouble(&understood);
    // Qt reads "nan" and "inf". For a number out of range it reports failure, but returns infinity.
    return understood && qIsFinite(measure.value);
}

bool SmilUnit::convert(const QString &text)
{
    if (text.isEmpty()) {
        return false;
    }
    unit = Px;
    const Outcome outcome = readPlain(text, *this);
    if (outcome == Outcome::Read || (outcome == Outcome::Undecided && readAny(text, *this))) {
        return true;
    }
    unit = NoUnit;
    value = 0.0;
    return false;
}

/** Whether the number is written as nothing but digits, six at most. */
static bool isSmallWhole(double value)
{
    return value >= 0.0 && value < 1e6 && value == int(value);
}

static QString writeDigits(int number, QLatin1String suffix)
{
    char16_t text[8];
    char16_t *const end = std::end(text);
    char16_t *begin = std::copy_backward(suffix.begin(), suffix.end(), end);
    do {
        *--begin = char16_t(u'0' + number % 10);
        number /= 10;
    } while (number > 0);
    return QString(reinterpret_cast<const QChar *>(begin), int(end - begin));
}

QString SmilUnit::toString() const
{
    if (!valid || unit < Pt || unit > NoUnit) {
        return QString();
    }
    const QLatin1String suffix = unit == NoUnit ? QLatin1String("") : suffixes[unit].text;
    if (isSmallWhole(value)) {
        return writeDigits(int(value), suffix);
    }
    return QString::number(value, 'g', 6) + suffix;
}
