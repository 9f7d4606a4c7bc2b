// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_JSON_H
#define SMILTOOL_JSON_H

#include "input/message.h"

class QIODevice;

/** Writes what show() does, what plays when and where, and why the message or its SMIL cannot be read: a line of JSON.
 */
void showJson(const Message &message, QIODevice &out);

#endif
