// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMANDS_H
#define SMILTOOL_COMMANDS_H

#include <smilparser/smilparser.h>

/** Writes the model of the message @p file to @p out, as an indented outline. */
void show(const QString &file, const SmilDocument &document, QIODevice &out);

/** Writes the model to @p out as indented XML, the attributes of an element always in the same order. */
void render(const QString &file, const SmilDocument &document, QIODevice &out);

#endif
