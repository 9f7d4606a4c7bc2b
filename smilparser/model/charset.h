// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_CHARSET_H
#define SMILPARSER_CHARSET_H

#include <QtCore/QString>

/** What becomes of bytes that are not of their charset. */
enum class Malformed {
    Stop, ///< the text ends at the first of them, with U+FFFD (Qt 6); Qt 5 replaces each
    Replace ///< each becomes U+FFFD; a character that is cut off at the end may be left out
};

/** The text that @p bytes are in @p charset; null when Qt does not know that. */
QString decodeText(const QByteArray &charset, const QByteArray &bytes, Malformed malformed);

/**
 * Puts U+FFFD in the place of each, which is no character. Qt would turn it into "?", which may end an instruction, and
 * the DOM of Qt 6.11 crashes on it.
 */
void replaceUnpairedSurrogates(QString &text);

#endif
