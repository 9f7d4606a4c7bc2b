// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_TEXT_H
#define SMILTOOL_TEXT_H

#include <QtCore/QStringList>

/**
 * The text with what a terminal would obey or hide (control and format characters, but no joiner inside a word) written
 * as \u{XXXX}.
 */
QString printable(const QString &text);

/** The same for XML: as &#xXXXX;, and U+FFFD for what XML does not allow at all. Line feeds stay. */
QString printableXml(const QString &text);

/** The text as printable(), in quotation marks, with those in it and backslashes escaped. */
QString quoted(const QString &text);

/** At most that many characters, as QString counts them, of the text; "\u2026" is the last when some are left out. */
QString shortened(const QString &text, int most);

/** A width that no character is below, to width(). */
const double narrowestLetter = 4.5;

/** About how long the text is in a sans-serif font of size 11, rather more than less. */
double width(const QString &text);

/** The text if it is no longer than @p most. If it is, as much of its beginning as fits, "\u2026" and its extension. */
QString elided(const QString &text, double most);

/**
 * The text in lines that are no longer than @p most, but that a line has one letter at least; "\u2026" ends the last
 * when there are more than @p count.
 */
QStringList wrapped(const QString &text, double most, int count);

#endif
