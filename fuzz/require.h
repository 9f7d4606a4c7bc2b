// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_REQUIRE_H
#define SMILPARSER_REQUIRE_H

#include <QtCore/QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

inline void require(bool holds, const char *what)
{
    if (!holds) {
        fprintf(stderr, "Does not hold: %s\n", what);
        abort();
    }
}

/** Whether XML allows every character of the text; what it does not allow is in a tree, but cannot be read. */
inline bool isXml(const QString &text)
{
    // With halves of surrogate pairs replaced, it is another text.
    return QString::fromUtf8(text.toUtf8()) == text && std::all_of(text.begin(), text.end(), [](QChar c) {
               return c == u'\t' || c == u'\n' || c == u'\r' || (c >= u' ' && c.unicode() < 0xfffe);
           });
}

#endif
