// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_PARTS_H
#define SMILTOOL_PARTS_H

#include "mms.h"

#include <QtCore/QHash>

/** The parts of a message beside its presentation, and which of them a src means. */
class Parts
{
public:
    /** What the content of a part is, whatever its name and its type say. */
    enum Kind {
        Unread,
        Picture, ///< PNG, JPEG, GIF or WebP
        OtherPicture,
        Text,
        Xml, ///< such as SMIL
        Audio,
        Video,
        Other
    };

    struct Part {
        QString name;
        QByteArray data;
        QString type; ///< by its content, such as "image/png"
        Kind kind = Unread;
        QString problem; ///< why it could not be read (a link by now, too large), to be written after its name
    };

    /**
     * The files directly in the folder; no links, no devices and the like. @p smil is the file that the presentation
     * was read from, wherever that is. If the folder cannot be read, or has more than 10,000 files, @p problem says
     * so, and there are no parts. A file of more than 8 MiB is not read, nor one that makes it more than 64 MiB in all.
     */
    static Parts ofFolder(const QString &folder, const QString &smil, QString &problem);
    /** Those of a message as it is sent, with their data; no bound is needed but that of the message. */
    static Parts ofMessage(const MmsMessage &message);

    int size() const { return int(m_parts.size()); } // never many: both kinds have a limit
    /** The part as far as it has been read. */
    const Part &at(int part) const { return m_parts.at(part); }

    /** Which of the parts is the presentation, or -1. */
    int smil() const { return m_smil; }

    /**
     * The part that a src means, or -1: the one of exactly this name; if none is, of its bareId(); of that with %XX
     * decoded; of that in whatever letter case. A part of a message goes by its identifier, its location and its name.
     */
    int find(const QString &src) const;

    /** The part with its data and kind, which are looked at when they are first asked for. */
    const Part &read(int part);

private:
    void add(const QString &name, const QByteArray &data = QByteArray());
    void call(int part, const QString &name);
    QString readFile(Part &part);

    QString m_folder; // null: the parts have their data
    qint64 m_left = 0;
    int m_smil = -1;
    QVector<Part> m_parts;
    QHash<QString, int> m_names;
    QHash<QString, int> m_foldedNames;
};

/** The identifier of a part without quotation marks, "cid:" and angle brackets. */
QString bareId(const QString &id);

#endif
