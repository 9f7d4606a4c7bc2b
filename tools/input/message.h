// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGE_H
#define SMILTOOL_MESSAGE_H

#include "input/files.h"
#include "input/mms.h"

/** The parts of a message, the SMIL among them, and which of them a src means. */
class MessageParts
{
public:
    struct Part {
        QString name; ///< that is printed: its name, or else its location or identifier
        QByteArray data;
        QString type; ///< recognised from its data; null until that is read
        QString problem; ///< why it could not be read or shown (a link by now, too large), to be written after its name
    };

    /** None, because it is not known which there are. */
    MessageParts() = default;
    /**
     * The files of the folder, of types that follow from their names. @p smil is the file that the SMIL was read from,
     * wherever that is.
     */
    MessageParts(const Folder &folder, const QString &smil);
    explicit MessageParts(const MmsMessage &message);

    /** Whether it is known which parts there are, so that one that is not here is missing. */
    bool areKnown() const { return m_areKnown; }

    int size() const { return int(m_parts.size()); } // never many: both kinds have a limit
    /** What the library needs to know of each part. */
    const QList<SmilPart> &headers() const { return m_headers; }
    /** The part as far as it has been read. */
    const Part &at(int part) const { return m_parts.at(part); }

    /** The part that a src means, as SmilSlideshow finds it; -1 for none. */
    int find(const QString &src) const { return m_names.find(src); }

    /** The part with its data and kind, which are looked at when they are first asked for. */
    const Part &read(int part);

    /** The first characters of its text, @p most of them, without a look at the rest. */
    QString beginning(int part, int most) const;

    /** Gives a part a problem. */
    void leaveOut(int part, const QString &problem) { m_parts[part].problem = problem; }

    /** A line for each part that has a problem; those of a message are in @p file. */
    QStringList problems(const QString &file) const;

private:
    explicit MessageParts(const QList<SmilPart> &headers);

    Folder m_folder; ///< that has the data, or none: then the parts have it
    bool m_areKnown = false;
    QList<SmilPart> m_headers;
    QVector<Part> m_parts;
    SmilParts m_names;
};

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

/** The first bounds::frames slides, or less of a huge message, with their first bounds::media cues and all parts. */
QList<SmilSlide> firstSlides(const SmilSlideshow &show);

#endif
