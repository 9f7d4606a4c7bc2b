// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGE_H
#define SMILTOOL_MESSAGE_H

#include "mms.h"
#include "parts.h"

#include <smilparser/smilparser.h>

/** A presentation as the library reads it, and what came with it. */
struct Message {
    QString file;
    QByteArray bytes; ///< of the SMIL part alone
    SmilDocument document;
    QDomDocument dom; ///< what the library read it from, with the lines and all that the model leaves out
    MmsMessage mms; ///< without parts when the file is no message as it is sent
    bool hasParts = false;
    Parts parts;
};

/**
 * Reads @p file ("-" is standard input), a SMIL part or a message as it is sent, into @p message, with the library's @p
 * options. The other parts are those of the message, or else the files in @p folder unless that is empty. Returns a
 * line that says why if the SMIL cannot be read, is not well formed or lacks smil, head or body, or if the folder
 * cannot be read; or else nothing.
 */
QString readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options, Message &message);

/** The same of bytes that have been read; @p message has its file already. */
QString readBytes(const QByteArray &bytes, const QString &folder, SmilParser::ReadOptions options, Message &message);

/** Says on standard error which parts could not be read when they were needed. Returns whether there was none. */
bool complainOfParts(const Message &message, const QString &folder);

#endif
