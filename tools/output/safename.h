// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_SAFENAME_H
#define SMILTOOL_SAFENAME_H

#include <QtCore/QString>

/**
 * A name that a stranger gave, as one under which a file can be written into a folder, and shown in a terminal: without
 * folders before it, without control and format characters, without dots, "-" and blanks at its beginning, and of
 * bounds::fileName bytes at most, of which its extension is the last to go. Empty if nothing is left. A name is safe as
 * it stands if it comes back the same, and so does each that was made here.
 */
QString safeName(const QString &name);

/** The same name with a number before its extension, "photo-2.jpg", which is safe too. */
QString numberedName(const QString &safe, int number);

#endif
