// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_NAMES_H
#define SMILPARSER_NAMES_H

#include <QtCore/QMap>

/** The name of a file, given by name or path, as every phone understands it: of any length, never empty. */
QString plainName(const QString &name);

/**
 * @p plain, cut to what phones keep, and numbered if @p names has that already. @p names has all names in lower case,
 * and the result is added to it. For what stands around a number, it also has the number to try next: without that, a
 * name that comes many times would try all numbers each time.
 */
QString newName(const QString &plain, QMap<QString, int> &names);

#endif
