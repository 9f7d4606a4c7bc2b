// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGE_H
#define SMILTOOL_MESSAGE_H

#include <smilparser/smilparser.h>

/** A message part as the library reads it. */
struct Message {
    QString file;
    QByteArray bytes;
    SmilDocument document;
};

/**
 * Reads the message part @p file ("-" is standard input) into @p message, with the library's @p options. If it cannot
 * be read, is not well formed or lacks smil, head or body, says so in one line on standard error and returns false.
 */
bool readMessage(const QString &file, SmilParser::ReadOptions options, Message &message);

/** The DOM of bytes that the library has found well formed and harmless, with the lines that the model lacks. */
QDomDocument readDom(const QByteArray &bytes);

/** Writes a line to standard error, as printable(). */
void complain(const QString &text);

#endif
