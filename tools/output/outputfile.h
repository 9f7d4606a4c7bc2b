// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_OUTPUTFILE_H
#define SMILTOOL_OUTPUTFILE_H

#include <QtCore/QString>

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

#endif
