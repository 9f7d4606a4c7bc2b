// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_ERRORS_H
#define SMILTOOL_ERRORS_H

#include <QtCore/QString>

/** Writes a line to standard error, as printable(). */
void complain(const QString &text);

#endif
