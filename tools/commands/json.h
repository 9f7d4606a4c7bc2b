// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_JSON_H
#define SMILTOOL_JSON_H

#include "message.h"

class QIODevice;

/** Writes what show() does, and what plays when and where, as a line of JSON. */
void showJson(const Message &message, QIODevice &out);

/** Writes why @p file could not be read, as a line of JSON. */
void showJson(const QString &file, const Problem &problem, QIODevice &out);

#endif
