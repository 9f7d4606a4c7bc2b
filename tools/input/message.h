// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGE_H
#define SMILTOOL_MESSAGE_H

#include "input/messageparts.h"

/** Why a file or the SMIL in it cannot be read. */
struct Problem {
    QString of; ///< a file or a folder; null if there is no problem
    QString text;
    int line = 0; ///< of the XML, from 1 on; 0 when the problem is none of the XML
    int column = 0;

    bool isNone() const { return of.isNull(); }
    /** "FILE: text", or "FILE:LINE:COLUMN: text". */
    QString toString() const;
};

/** A message as it came: its parts, and what the library reads of its SMIL. */
struct Message {
    QString file;
    QByteArray smil; ///< the content of the SMIL part; empty when there is none
    SmilParser::Outcome outcome = SmilParser::NotWellFormed; ///< that of reading it
    SmilDocument document;
    QDomDocument dom; ///< what the library read it from, with the lines and all that the model leaves out
    MmsMessage mms; ///< only of a message as it is sent
    MessageParts parts;
    Problem problem;

    /** Whether there is something to show. A whole message whose SMIL cannot be read still has its parts. */
    bool isReadable() const { return problem.isNone() || (parts.areKnown() && !mms.parts.isEmpty()); }
    /** As it is shown. To be kept: all is read anew at each call. */
    SmilSlideshow slideshow() const;
};

/**
 * Reads @p file ("-" is standard input), a SMIL part or a message as it is sent. The other parts are those of the
 * message, or else the files in @p folder unless that is empty. A SMIL without smil, head or body is a problem, but a
 * message as it is sent need not have any.
 */
Message readMessage(const QString &file, const QString &folder,
                    SmilParser::ReadOptions options = SmilParser::ClockDurations);

/** The same of bytes that have been read from @p file. */
Message readBytes(const QByteArray &bytes, const QString &file, const QString &folder,
                  SmilParser::ReadOptions options = SmilParser::ClockDurations);

/** The first slides with the first media of each: bounds::frames and bounds::media of them, or less of a huge message.
 */
QList<SmilSlide> firstSlides(const SmilSlideshow &show);

#endif
