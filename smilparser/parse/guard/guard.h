// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_GUARD_H
#define SMILPARSER_GUARD_H

#include <QtCore/QByteArray>

/**
 * How many of @p bytes the XML reader may be handed: all of them, or those before the first place where a limit of
 * SmilParser::Limit is exceeded. Cut off there, the document is always incomplete, so that the reader reports that.
 *
 * The reader's memory, stack and time are not bounded by the size of its input; within the limits they are. What is
 * malformed is passed on, because the reader stops at its first error.
 */
qint64 harmlessSize(const QByteArray &bytes);

#endif
