// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_PLAINFILE_H
#define SMILTOOL_PLAINFILE_H

#include <QtCore/QString>

class QFile;

enum class Links { Refused, Followed };

/**
 * Opens a plain file to read it; what is none (a folder, a device, a pipe, which may wait for a writer or have no end)
 * is not opened. Returns why that failed, to be written after its name, or else nothing.
 */
QString openPlainFile(const QString &name, Links links, QFile &file);

#endif
