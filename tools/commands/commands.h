// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_COMMANDS_H
#define SMILTOOL_COMMANDS_H

#include "commands/command.h"

// Each is in the file of its name, with all that is said of it to users. What it does with a message that has been read
// is a function beside it.
extern const Command showCommand;
extern const Command renderCommand;
extern const Command storyboardCommand;
extern const Command checkCommand;
extern const Command composeCommand;
extern const Command extractCommand;

/** In the order in which the help lists them. */
const Command *const allCommands[] = {&showCommand,  &renderCommand,  &storyboardCommand,
                                      &checkCommand, &composeCommand, &extractCommand};

/** Writes the model of the message to @p out, as an indented outline. */
void show(const Message &message, QIODevice &out);

/** What show() prints of a part. */
QString partText(const QString &name, const QString &type, const QByteArray &data);

/** Writes the same as show() does as a line of JSON, with what plays when and where, or why the message or its SMIL
 * cannot be read. */
void showJson(const Message &message, QIODevice &out);

/** Writes the model to @p out as indented XML. */
void render(const Message &message, QIODevice &out);

/** Draws the message as a picture in SVG, with the parts that it has: a frame for each slide. */
void storyboard(Message &message, QIODevice &out);

/**
 * Writes to @p out what its sender or receiver might want to know of the message, a line each, except findings whose
 * names are in @p ignored. Returns whether there was any.
 */
bool check(Message &message, const QStringList &ignored, QIODevice &out);

#endif
