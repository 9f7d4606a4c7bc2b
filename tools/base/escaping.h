// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_ESCAPING_H
#define SMILTOOL_ESCAPING_H

#include <QtCore/QString>

/** Whether a terminal would obey or hide the character: it is a control or format character, or none at all. */
bool needsEscaping(char32_t c);

/**
 * The text with what a terminal would obey or hide (control and format characters, but no joiner inside a word) written
 * as \u{XXXX}.
 */
QString printable(const QString &text);

/** Writes a line to standard error, as printable(). */
void printError(const QString &text);

/** The same XML, with all that printable() escapes, except line feeds, written as &#xXXXX;. */
QString printableXml(const QString &xml);

/** The same JSON, in one line, with all that written as \uXXXX. */
QByteArray printableJson(const QByteArray &json);

/** The text as printable(), in quotation marks, with those in it and backslashes escaped. */
QString quoted(QString text);

/** At most that many characters, as QString counts them, of the text; "\u2026" is the last when some are left out. */
QString shortened(const QString &text, int most);

/** How long something takes, such as "6.825s"; "\u221e" is infinite. */
QString lengthText(double seconds);

/** When something happens, such as "0:06.825" or "1:00:00"; as lengthText() when that is in years from now. */
QString clockText(double seconds);

#endif
