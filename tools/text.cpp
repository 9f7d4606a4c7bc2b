// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "text.h"

#include <string>

static bool isHidden(uint c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

template<typename Escape>
static QString escape(const QString &text, Escape escaped)
{
    QString result;
    result.reserve(text.size());
    const std::u32string characters = text.toStdU32String();
    for (const char32_t c : characters) {
        result += isHidden(c) ? escaped(c) : QString::fromUcs4(&c, 1);
    }
    return result;
}

QString printable(const QString &text)
{
    return escape(text, [](uint c) { return QStringLiteral("\\u{%1}").arg(c, 4, 16, QLatin1Char('0')); });
}

QString printableXml(const QString &text)
{
    return escape(text, [](uint c) {
        const bool allowed = c == '\t' || c == '\n' || c == '\r' || c >= 0x20;
        return c == '\n' ? QString(QLatin1Char('\n'))
            : allowed    ? QStringLiteral("&#x%1;").arg(c, 0, 16)
                         : QString(QChar(QChar::ReplacementCharacter));
    });
}

QString quoted(const QString &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + printable(escaped) + QLatin1Char('"');
}
