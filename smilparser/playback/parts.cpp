// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

/** The name without what may be around it. Each mark may be there without the other: some encodings end at a null. */
static QString bareName(const QString &name)
{
    QString bare = name;
    for (const QLatin1String start : {QLatin1String("\""), QLatin1String("cid:"), QLatin1String("<")}) {
        if (bare.startsWith(start, Qt::CaseInsensitive)) {
            bare.remove(0, start.size());
        }
    }
    for (const char end : {'"', '>'}) {
        if (bare.endsWith(QLatin1Char(end))) {
            bare.chop(1);
        }
    }
    return bare;
}

static QString decoded(const QString &name)
{
    if (!name.contains(QLatin1Char('%'))) {
        return name;
    }
    const QByteArray bytes = QByteArray::fromPercentEncoding(name.toUtf8());
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

/** Whoever has the name first keeps it. */
static void insertOnce(QHash<QString, int> &names, const QString &name, int part)
{
    if (!names.contains(name)) {
        names.insert(name, part);
    }
}

void SmilParts::add(int part, const QString &name)
{
    const QString bare = bareName(name);
    if (part < 0 || bare.isEmpty()) {
        return;
    }
    insertOnce(names, name, part);
    insertOnce(bareNames, bare, part);
    insertOnce(foldedNames, bare.toCaseFolded(), part);
}

int SmilParts::find(const QString &src) const
{
    const QString bare = bareName(src);
    const QString plain = decoded(bare);
    int part = names.value(src, -1);
    part = part < 0 ? bareNames.value(bare, -1) : part;
    part = part < 0 ? bareNames.value(plain, -1) : part;
    return part < 0 ? foldedNames.value(plain.toCaseFolded(), -1) : part;
}
