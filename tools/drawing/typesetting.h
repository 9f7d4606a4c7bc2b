// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_TYPESETTING_H
#define SMILTOOL_TYPESETTING_H

#include <QtCore/QStringList>

/** A width that no character is below, to width(). */
const double narrowestLetter = 4.5;

/** About how long the text is in a sans-serif font of size 11, rather more than less. */
double width(const QString &text);

/** The text if it is no longer than @p most. If it is, as much of its beginning as fits, "\u2026" and its extension. */
QString elided(const QString &text, double most);

/**
 * The text, printable, in lines that are no longer than @p most, except that each has one letter at least. "\u2026"
 * ends the last one when there are more than @p count.
 */
QStringList wrapped(const QString &text, double most, int count);

/** The text without what only says how to set it: tabs, marks of direction, soft hyphens; joiners stay. */
QString withoutFormat(QString text);

#endif
