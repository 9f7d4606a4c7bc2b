// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MESSAGEPARTS_H
#define SMILTOOL_MESSAGEPARTS_H

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

#endif
