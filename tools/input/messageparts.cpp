// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/content.h"
#include "input/message.h"

#include <QtCore/QMimeDatabase>

MessageParts::MessageParts(const QList<SmilPart> &headers)
    : m_areKnown(true)
    , m_headers(headers)
    , m_parts(headers.size())
{
    // What identifies one part goes before what another is merely called.
    for (QString SmilPart::*const name : {&SmilPart::contentId, &SmilPart::location, &SmilPart::name}) {
        for (int i = 0; i < size(); ++i) {
            const QString &said = headers.at(i).*name;
            m_names.add(i, said);
            m_parts[i].name = said.isEmpty() ? m_parts.at(i).name : said;
        }
    }
}

/** Nothing is read yet: the folder may hold much that the message does not name. */
static QList<SmilPart> headersOf(const Folder &folder, const QString &smil)
{
    const QMimeDatabase types;
    const QString smilName = nameIn(folder.path(), smil);
    QList<SmilPart> headers;
    for (const QString &name : folder.files()) {
        SmilPart part;
        part.name = name;
        part.type = name == smilName ? QStringLiteral("application/smil")
                                     : types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
        headers.append(part);
    }
    return headers;
}

MessageParts::MessageParts(const Folder &folder, const QString &smil)
    : MessageParts(headersOf(folder, smil))
{
    m_folder = folder;
}

MessageParts::MessageParts(const MmsMessage &message)
    : MessageParts(message.parts)
{
    for (int i = 0; i < size(); ++i) {
        m_parts[i].data = message.data.at(i);
    }
}

const MessageParts::Part &MessageParts::read(int index)
{
    Part &part = m_parts[index];
    if (part.type.isNull() && part.problem.isEmpty()) {
        part.problem = m_folder.path().isNull() ? QString() : m_folder.read(part.name, part.data);
        part.type = part.problem.isEmpty() ? recognisedType(part.data) : QString();
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
