// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/messageparts.h"
#include "input/content.h"

#include <QtCore/QMimeDatabase>

void MessageParts::add(const SmilPart &headers, const QByteArray &data)
{
    Part part;
    for (const QString &name : {headers.name, headers.location, headers.contentId}) {
        part.name = part.name.isEmpty() ? name : part.name;
    }
    part.data = data;
    m_headers.append(headers);
    m_parts.append(part);
}

void MessageParts::addNames()
{
    // What identifies one part goes before what another is merely called.
    for (QString SmilPart::*const name : {&SmilPart::contentId, &SmilPart::location, &SmilPart::name}) {
        for (int i = 0; i < size(); ++i) {
            m_names.add(i, m_headers.at(i).*name);
        }
    }
}

MessageParts::MessageParts(const Folder &folder, const QString &smil)
    : m_folder(folder)
    , m_areKnown(true)
{
    const QMimeDatabase types;
    const QString smilName = nameIn(folder.path(), smil);
    for (const QString &name : folder.files()) {
        SmilPart part;
        part.name = name;
        add(part);
        // Nothing is read yet: the folder may hold much that the message does not name.
        m_headers.last().type = name == smilName ? QStringLiteral("application/smil")
                                                 : types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
    }
    addNames();
}

MessageParts::MessageParts(const MmsMessage &message)
    : m_areKnown(true)
{
    for (int i = 0; i < int(message.parts.size()); ++i) {
        add(message.parts.at(i), message.data.at(i));
    }
    addNames();
}

const MessageParts::Part &MessageParts::read(int index)
{
    Part &part = m_parts[index];
    if (part.type.isNull() && part.problem.isEmpty()) {
        if (!m_folder.path().isNull()) {
            part.problem = m_folder.read(part.name, part.data);
        }
        if (part.problem.isEmpty()) {
            part.type = recognisedType(part.data);
        }
    }
    return part;
}

QString MessageParts::beginning(int part, int most) const
{
    // No broken character at the end: what is not all UTF-8 would be taken for Latin-1.
    const QByteArray &data = at(part).data;
    auto size = qMin<qsizetype>(data.size(), 4 * qsizetype(most));
    while (size > 0 && size < data.size() && (uchar(data.at(size)) & 0xc0) == 0x80) {
        --size;
    }
    return m_headers.at(part).text(data.left(size)).left(most);
}

QStringList MessageParts::problems(const QString &file) const
{
    const QString place = m_folder.path().isNull() ? file : m_folder.path();
    QStringList lines;
    for (const Part &part : m_parts) {
        if (!part.problem.isEmpty()) {
            lines.append(QStringLiteral("%1/%2: %3").arg(place, part.name, part.problem));
        }
    }
    return lines;
}
