// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_CHARACTERS_H
#define SMILPARSER_CHARACTERS_H

#include <QtCore/QString>

inline bool isSpace(char16_t c)
{
    return c == u' ' || c == u'\n' || c == u'\r' || c == u'\t';
}

inline bool isQuote(char16_t c)
{
    return c == u'"' || c == u'\'';
}

/** Whether a name cannot go on with that character in markup that the XML reader accepts. */
inline bool endsName(char16_t c)
{
    return c <= u'?' && (c == u'=' || c == u'/' || c == u'<' || c == u'>' || c == u'?' || isSpace(c) || isQuote(c));
}

inline char16_t code(char c)
{
    return uchar(c);
}

inline char16_t code(char16_t c)
{
    return c;
}

inline QString toText(const char *begin, const char *end)
{
    // At its beginning, Qt would take U+FEFF for a byte order mark; in a name it is a character that the reader sees.
    return QString::fromUtf8(QByteArray("x").append(begin, int(end - begin))).mid(1);
}

inline QString toText(const char16_t *begin, const char16_t *end)
{
    return QString(reinterpret_cast<const QChar *>(begin), int(end - begin));
}

/** The text with its references to characters replaced by these. */
QString expandCharacters(const QString &text);

#endif
