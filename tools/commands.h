// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMANDS_H
#define SMILTOOL_COMMANDS_H

#include "message.h"

#include <QtCore/QStringList>

/** Writes the model of the message to @p out, as an indented outline. */
void show(const Message &message, QIODevice &out);

/**
 * Writes the model to @p out as indented XML, the attributes of an element always in the same order. The message's DOM
 * is dropped.
 */
void render(Message &message, QIODevice &out);

/**
 * Draws the message as a picture in SVG, with the parts that it has: a frame for each thing that plays by itself.
 * Returns whether all could be written.
 */
bool storyboard(Message &message, QIODevice &out);

/**
 * Writes to @p out what its sender or receiver might want to know of the message, a line each, but for the kinds of
 * findings in @p ignored. Returns whether there was any.
 */
bool check(Message &message, const QStringList &ignored, QIODevice &out);

/** The names of the kinds of findings. */
QStringList findingNames();

#endif
