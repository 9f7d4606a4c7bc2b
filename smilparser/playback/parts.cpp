// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <cctype>
#include <cstring>
#include <map>

/** The name without what may be around it. Each mark may be there without the other: some encodings end at a null. */
static QString bareName(const QString &name)
{
    QStringView bare(name);
    for (const QLatin1String start : {QLatin1String("\""), QLatin1String("cid:"), QLatin1String("<")}) {
        if (bare.startsWith(start, Qt::CaseInsensitive)) {
            bare = bare.mid(start.size());
        }
    }
    for (const QChar end : {u'"', u'>'}) {
        if (bare.endsWith(end)) {
            bare.chop(1);
        }
    }
    return bare.size() == name.size() ? name : bare.toString();
}

/** A "%" without two digits after it stands for itself. Qt's own decoding would take what follows it, too. */
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
    /** Most names differ at the first look. No hash: a stranger can choose names whose hashes collide. */
    struct ShorterFirst {
        bool operator()(const QString &one, const QString &other) const
        {
            return one.size() != other.size()
                ? one.size() < other.size()
                : std::memcmp(one.constData(), other.constData(), one.size() * sizeof(QChar)) < 0;
        }
    };

    /** The first part of which a text is the exact, bare or folded name; -1 when there is none. */
    struct Meanings {
        int exact = -1; ///< the text is a name
        int bare = -1; ///< the text is a bare name
        int folded = -1; ///< the text is a bare name without letter case
    };

    std::map<QString, Meanings, ShorterFirst> names;
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

/** The first part that has a name keeps it. */
static void setOnce(int &meaning, int part)
{
    meaning = meaning < 0 ? part : meaning;
}

void SmilParts::add(int part, const QString &name)
{
    const QString bare = bareName(name);
    if (part < 0 || bare.isEmpty()) {
        return;
    }
    const QString folded = bare.toCaseFolded();
    auto &names = d->names;
    auto at = names.try_emplace(name).first; // the three are one text as a rule
    setOnce(at->second.exact, part);
    at = bare == name ? at : names.try_emplace(bare).first;
    setOnce(at->second.bare, part);
    at = folded == bare ? at : names.try_emplace(folded).first;
    setOnce(at->second.folded, part);
}

int SmilParts::find(const QString &src) const
{
    using Meanings = SmilPartsData::Meanings;
    const auto meaning = [this](const QString &name, int Meanings::*as) {
        const auto found = d->names.find(name);
        return found == d->names.end() ? -1 : found->second.*as;
    };
    int part = meaning(src, &Meanings::exact);
    if (part < 0) {
        const QString bare = bareName(src);
        const QString plain = bareName(decoded(bare));
        part = meaning(bare, &Meanings::bare);
        part = part < 0 ? meaning(plain, &Meanings::bare) : part;
        part = part < 0 ? meaning(plain.toCaseFolded(), &Meanings::folded) : part;
    }
    return part;
}
