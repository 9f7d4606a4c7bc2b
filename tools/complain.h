// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMPLAIN_H
#define SMILTOOL_COMPLAIN_H

#include <QtCore/QString>

/** Writes a line to standard error, as printable(). */
void complain(const QString &text);

/** The same of a file. Returns false, which is what a caller goes on with. */
bool complainOf(const QString &file, const QString &problem);

#endif
