// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_NAMES_H
#define SMILPARSER_NAMES_H

#include <QtCore/QMap>

/** What is left of a file's name, or its path, as every phone understands it: of any length, never empty. */
QString plainName(const QString &name);

/**
 * @p plain, cut to what phones keep, and numbered unless that is new to @p names, which has all names in lower case;
 * the result is added there. This function also notes there, for what is before and after a number, which one it tries
 * next: without that, the same name many times would try all numbers each time.
 */
QString newName(const QString &plain, QMap<QString, int> &names);

#endif
