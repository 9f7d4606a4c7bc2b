// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_OUTPUT_H
#define SMILTOOL_OUTPUT_H

#include "message.h"

/**
 * Draws the storyboard of the message to the file @p name. A file is replaced as a whole or not at all, and never when
 * it is the message itself or a part of it in @p folder; a device, a pipe or a descriptor (/dev/stdout) is written to.
 * Returns false, having said why on standard error, when that fails.
 */
bool drawTo(const QString &name, const QString &folder, Message &message);

#endif
