// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"

#include <QtCore/qnumeric.h>

#include <cstdio>
#include <string>

bool needsEscaping(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Other_Format || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph || QChar::isNonCharacter(c);
}

/** Whether a joiner stands between two characters that show, as in Persian words and many emoji. */
static bool joins(const std::u32string &text, size_t i)
{
    const auto shows = [&text](size_t at) {
        return at < text.size() && !needsEscaping(text[at]) && !QChar::isSpace(text[at]);
    };
    return (text[i] == 0x200c || text[i] == 0x200d) && i > 0 && shows(i - 1) && shows(i + 1);
}

template<typename Escape>
static QString escape(const QString &text, Escape escaped)
{
    const std::u32string characters = text.toStdU32String();
    std::u32string result;
    for (size_t i = 0; i < characters.size(); ++i) {
        const char32_t c = characters[i];
        result += needsEscaping(c) && !joins(characters, i) ? escaped(c).toStdU32String() : std::u32string(1, c);
    }
    return QString::fromStdU32String(result);
}

QString printable(const QString &text)
{
    return escape(text, [](uint c) {
        return QLatin1String("\\u{") + QString::number(c, 16).rightJustified(4, QLatin1Char('0')) + QLatin1Char('}');
    });
}

void printError(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(printable(text)));
}

QString printableXml(const QString &xml)
{
    return escape(
        xml, [](uint c) { return c == '\n' ? QString(QLatin1Char('\n')) : QStringLiteral("&#x%1;").arg(c, 0, 16); });
}

QByteArray printableJson(const QByteArray &json)
{
    const auto unit = [](ushort c) { return QStringLiteral("\\u%1").arg(c, 4, 16, QLatin1Char('0')); };
    return escape(QString::fromUtf8(json),
                  [&unit](uint c) {
                      return QChar::requiresSurrogates(c) ? unit(QChar::highSurrogate(c)) + unit(QChar::lowSurrogate(c))
                                                          : unit(ushort(c));
                  })
        .toUtf8();
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + printable(text) + QLatin1Char('"');
}

QString shortened(const QString &text, int most)
{
    if (text.size() <= most) {
        return text;
    }
    const int end = most - 1 - (text.at(most - 2).isHighSurrogate() ? 1 : 0);
    return text.left(end) + QChar(0x2026);
}

QString lengthText(double seconds)
{
    return qIsFinite(seconds) ? QString::number(seconds) + QLatin1Char('s') : QString(QChar(0x221e));
}

QString clockText(double seconds)
{
    if (!(seconds < 1e9)) { // what follows has no room for more than a few million times that
        return lengthText(seconds);
    }
    const qint64 thousandths = qRound64(1000 * seconds);
    const qint64 whole = thousandths / 1000;
    const QString clock = whole < 3600
        ? QString::asprintf("%lld:%02lld", whole / 60, whole % 60)
        : QString::asprintf("%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60, whole % 60);
    const qint64 rest = thousandths % 1000;
    return rest == 0 ? clock : clock + QString::asprintf(".%03lld", rest);
}
