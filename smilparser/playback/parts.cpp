// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <cctype>

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

/** A "%" that no two digits follow stands for itself; Qt's own decoding would take what follows it, too. */
static QString decoded(const QString &name)
{
    const auto isDigit = [](char c) { return std::isxdigit(uchar(c)) != 0; };
    const QByteArray bytes = name.toUtf8();
    QByteArray plain(1, '_'); // or else Qt would drop a byte order mark
    for (auto at = bytes.begin(); at != bytes.end(); ++at) {
        if (*at == '%' && bytes.end() - at > 2 && isDigit(at[1]) && isDigit(at[2])) {
            plain += QByteArray::fromHex(QByteArray(at + 1, 2));
            at += 2;
        } else {
            plain += *at;
        }
    }
    return QString::fromUtf8(plain.constData(), plain.size()).mid(1);
}

class SmilPartsData : public QSharedData
{
public:
    // Ordered, not hashed: a stranger can choose names whose hashes collide.
    QMap<QString, int> names;
    QMap<QString, int> bareNames;
    QMap<QString, int> foldedNames;
};

SmilParts::SmilParts()
    : d(new SmilPartsData)
{
}

SmilParts::SmilParts(const SmilParts &other) = default;
SmilParts::SmilParts(SmilParts &&other) noexcept = default;
SmilParts &SmilParts::operator=(const SmilParts &other) = default;
SmilParts &SmilParts::operator=(SmilParts &&other) noexcept = default;
SmilParts::~SmilParts() = default;

/** Whoever has the name first keeps it. */
static void insertOnce(QMap<QString, int> &names, const QString &name, int part)
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
    insertOnce(d->names, name, part);
    insertOnce(d->bareNames, bare, part);
    insertOnce(d->foldedNames, bare.toCaseFolded(), part);
}

int SmilParts::find(const QString &src) const
{
    int part = d->names.value(src, -1);
    if (part < 0) {
        const QString bare = bareName(src);
        const QString plain = bareName(decoded(bare));
        part = d->bareNames.value(bare, -1);
        part = part < 0 ? d->bareNames.value(plain, -1) : part;
        part = part < 0 ? d->foldedNames.value(plain.toCaseFolded(), -1) : part;
    }
    return part;
}
