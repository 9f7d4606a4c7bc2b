// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_CHARSET_H
#define SMILPARSER_CHARSET_H

#include <QtCore/QString>

/** What becomes of bytes that are not of their charset. */
enum class Malformed {
    Stop, ///< the text ends at the first, with U+FFFD with Qt 6; Qt 5 replaces each
    Replace ///< each is U+FFFD, and so is a character that is cut off at the end
};

/** The text that @p bytes are in @p charset; null when Qt does not know that. */
QString decodeText(const QByteArray &charset, const QByteArray &bytes, Malformed malformed);

#endif
