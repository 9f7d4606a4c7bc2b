// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "parts.h"

void Parts::add(const QString &name, const QByteArray &data)
{
    Part part;
    part.name = name;
    part.data = data;
    m_parts.append(part);
}

Parts::Parts(const Folder &folder, const QString &smil)
    : m_folder(folder)
    , m_areKnown(true)
{
    for (const QString &name : folder.files()) {
        m_names.add(size(), name);
        add(name);
    }
    m_smil = int(folder.files().indexOf(nameIn(folder.path(), smil)));
}

Parts::Parts(const MmsMessage &message)
    : m_areKnown(true)
    , m_smil(message.smil)
{
    for (const MmsPart &part : message.parts) {
        const QString &place = part.location.isEmpty() ? part.id : part.location;
        add(part.name.isEmpty() ? place : part.name, part.data);
    }
    // Names are bare here. What is still around one of them belongs to it, and "<" and ">" are taken off instead.
    for (const auto &format : {QStringLiteral("%1"), QStringLiteral("<%1>")}) {
        // What identifies one part goes before what another is merely called.
        for (QString MmsPart::*const name : {&MmsPart::id, &MmsPart::location, &MmsPart::name}) {
            for (int i = 0; i < size(); ++i) {
                m_names.add(i, format.arg(message.parts.at(i).*name));
            }
        }
    }
}

const Parts::Part &Parts::read(int index)
{
    Part &part = m_parts[index];
    if (part.content.kind == PartKind::Unread && part.problem.isEmpty()) {
        if (!m_folder.path().isNull()) {
            part.problem = m_folder.read(part.name, part.data);
        }
        if (part.problem.isEmpty()) {
            part.content = recognised(part.data);
        }
    }
    return part;
}

QStringList Parts::problems(const QString &file) const
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
