// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_PARTS_H
#define SMILTOOL_PARTS_H

#include "folder.h"
#include "mediakind.h"
#include "mms.h"

#include <smilparser/smilplayback.h>

/** The parts of a message beside its presentation, and which of them a src means. */
class Parts
{
public:
    struct Part {
        QString name;
        QByteArray data;
        Content content;
        QString problem; ///< why it could not be read or shown (a link by now, too large), to be written after its name
    };

    /** None, because it is not known which there are. */
    Parts() = default;
    /** The files of the folder. @p smil is the file that the presentation was read from, wherever that is. */
    Parts(const Folder &folder, const QString &smil);
    explicit Parts(const MmsMessage &message);

    /** Whether it is known which parts there are, so that one that is not here is missing. */
    bool areKnown() const { return m_areKnown; }

    int size() const { return int(m_parts.size()); } // never many: both kinds have a limit
    /** The part as far as it has been read. */
    const Part &at(int part) const { return m_parts.at(part); }

    /** Which of the parts is the presentation, or -1. */
    int smil() const { return m_smil; }

    /** The part that a src means, as SmilParts::find(). A message's goes by its identifier, location and name. */
    int find(const QString &src) const { return m_names.find(src); }

    /** The part with its data and kind, which are looked at when they are first asked for. */
    const Part &read(int part);

    /** Gives a part a problem. */
    void leaveOut(int part, const QString &problem) { m_parts[part].problem = problem; }

    /** A line for each part that has a problem; those of a message are in @p file. */
    QStringList problems(const QString &file) const;

private:
    void add(const QString &name, const QByteArray &data = QByteArray());

    Folder m_folder; ///< that has the data, or none: then the parts have it
    bool m_areKnown = false;
    int m_smil = -1;
    QVector<Part> m_parts;
    SmilParts m_names;
};

#endif
