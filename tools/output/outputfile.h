// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_OUTPUTFILE_H
#define SMILTOOL_OUTPUTFILE_H

#include "input/message.h"

/**
 * Writes the file @p name, or to standard output if that is null. A file is replaced as a whole or not at all; a device
 * or a pipe is written to. Returns why that failed, to be written after its name, or else nothing.
 */
QString writeFile(const QString &name, const QByteArray &data);

/**
 * Writes a file that is not there yet, all of it or none. It takes the place of nothing, and follows no link. Returns
 * why that failed, as writeFile().
 */
QString createFile(const QString &name, const QByteArray &data);

/** Whether both are one regular file, by whatever names; as @p input, "-" is standard input. */
bool isSameFile(const QString &input, const QString &output);

/**
 * A name that a stranger gave, as one under which a file can be written into a folder, and shown in a terminal: without
 * folders before it, without control and format characters, without dots, "-" and blanks at its beginning, and of
 * bounds::fileName bytes at most, of which its extension is the last to go. Empty if nothing is left. A name is safe as
 * it stands if it comes back the same, and so does each that was made here.
 */
QString safeName(const QString &name);

/**
 * The name of the file that each part of the message is written to: safe, as safeName(), and no two alike in any letter
 * case. A part is called as the first of @p srcs is that means it and is, bare, a safe name that nothing else has. Any
 * other part is called as the message calls it, made safe, or else by its number and the extension of its type, with a
 * further number where something else has that name.
 */
QVector<QString> fileNames(const Message &message, const QStringList &srcs);

#endif
