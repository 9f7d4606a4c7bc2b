// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_TEXT_H
#define SMILTOOL_TEXT_H

#include <QtCore/QString>

/** The text with what a terminal would obey or hide (control and format characters) written as \u{XXXX}. */
QString printable(const QString &text);

/** The same for XML: as &#xXXXX;, and U+FFFD for what XML does not allow at all. Line feeds stay. */
QString printableXml(const QString &text);

/** The text as printable(), in quotation marks, with those in it and backslashes escaped. */
QString quoted(const QString &text);

#endif
