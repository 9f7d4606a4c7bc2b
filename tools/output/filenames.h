// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FILENAMES_H
#define SMILTOOL_FILENAMES_H

#include "input/message.h"

/**
 * The name of the file that each part of the message is written to: safe, as safeName(), and no two alike in any letter
 * case. A part is called as the first of @p srcs is that means it and is, bare, a safe name that nothing else has. Any
 * other part is called as the message calls it, made safe, or else by its number and the extension of its type, with a
 * further number where something else has that name.
 */
QVector<QString> fileNames(const Message &message, const QStringList &srcs);

#endif
