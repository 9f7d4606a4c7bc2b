// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGE_H
#define SMILTOOL_MESSAGE_H

#include "parts.h"

#include <smilparser/smilparser.h>

/** A presentation as the library reads it, and what came with it. */
struct Message {
    QString file;
    QByteArray bytes; ///< of the SMIL part alone
    SmilDocument document;
    QDomDocument dom; ///< what the library read it from, with the lines and all that the model leaves out
    MmsMessage mms; ///< without parts when the file is no message as it is sent
    Parts parts;
};

/** Why a message could not be read. */
struct Problem {
    QString of; ///< a file or a folder; null if there is no problem
    QString text;
    int line = 0; ///< of the XML, from 1 on; 0 when the problem is none of the XML
    int column = 0;

    bool isNone() const { return of.isNull(); }
    /** "FILE: text", or "FILE:LINE:COLUMN: text". */
    QString toString() const;
};

/**
 * Reads @p file ("-" is standard input), a SMIL part or a message as it is sent, into @p message, with the library's @p
 * options. The other parts are those of the message, or else the files in @p folder unless that is empty. It is a
 * problem if the SMIL cannot be read, is not well formed or lacks smil, head or body, or if the folder cannot be read.
 * Of a whole message, the parts are there even if its SMIL is missing or cannot be read.
 */
Problem readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options, Message &message);

/** The same of bytes that have been read from @p file. */
Problem readBytes(const QByteArray &bytes, const QString &file, const QString &folder, SmilParser::ReadOptions options,
                  Message &message);

#endif
