// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FILENAMES_H
#define SMILTOOL_FILENAMES_H

#include "message.h"

/** Under which names the parts of a message are written into a folder. */
struct FileNames {
    QVector<QString> names; ///< of each part, as safeName(), no two the same

    /** Each src that means a part, but no file of these names, once, with the name that its part has. */
    QVector<QPair<QString, QString>> lost;
};

/**
 * The names for the parts of a message whose SMIL has these @p srcs. A part that some of them mean is called as the
 * first of these is, bare, if that is safe as it stands. Any other has what the message calls it, made safe, or else
 * its number and the extension of its type, with a further number where something else has that name. In a folder that
 * has these files and no others, no src means another part than it does in the message.
 */
FileNames fileNames(const Message &message, const QStringList &srcs);

/** The same for the SMIL that the message has. */
FileNames fileNames(const Message &message);

#endif
