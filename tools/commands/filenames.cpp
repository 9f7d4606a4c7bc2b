// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "filenames.h"
#include "contentid.h"
#include "safename.h"

#include <smilparser/smilplayback.h>

#include <QtCore/QMimeDatabase>
#include <QtCore/QSet>

#include <algorithm>

namespace
{
struct Reference {
    QString src;
    int part; ///< that it means in the message; -1 if none
};

/** Which names a src may be about, and whose it is. */
class Claims
{
public:
    void add(const Reference &reference)
    {
        const QString bare = bareId(reference.src);
        const QByteArray decoded = QByteArray::fromPercentEncoding(bare.toUtf8());
        claim(bare, reference.part);
        claim(QString::fromUtf8(decoded.constData(), decoded.size()), reference.part);
    }

    /** Whether only what means this part could mean a file of this name. */
    bool allow(const QString &name, int part) const { return owners.value(bareId(name).toCaseFolded(), part) == part; }

private:
    void claim(const QString &name, int part)
    {
        const int several = -2;
        int &owner = *owners.insert(name.toCaseFolded(), owners.value(name.toCaseFolded(), part));
        owner = owner == part ? part : several;
    }

    QHash<QString, int> owners;
};

class Naming
{
public:
    Naming(const Message &read, const QVector<Reference> &all)
        : message(read)
        , references(all)
    {
        for (const Reference &reference : references) {
            claims.add(reference);
        }
    }

    /** Gives each part a name, none of which is in @p refused but for the letter case and what may be around it. */
    QVector<QString> names(const QSet<QString> &refused);

private:
    void nameBySrc(const QSet<QString> &refused);
    QString nameOf(int part) const;
    QString freeName(int part);

    const Message &message;
    const QVector<Reference> &references;
    Claims claims;
    QVector<QString> given;
    QSet<QString> taken;
    QHash<QString, int> numbers; ///< the last that was tried, by the name before it
};
}

/** "." and the extension of a type, or nothing. */
static QString extensionOf(const QString &type)
{
    const QMimeDatabase types;
    QMimeType found = types.mimeTypeForName(type);
    if (!found.isValid()) { // "audio/AMR" is not in lower case there
        static const QList<QMimeType> every = types.allMimeTypes();
        const auto isIt = [&type](const QMimeType &each) {
            return each.name().compare(type, Qt::CaseInsensitive) == 0;
        };
        const auto other = std::find_if(every.cbegin(), every.cend(), isIt);
        found = other == every.cend() ? found : *other;
    }
    const QString extension = found.preferredSuffix();
    return extension.isEmpty() ? extension : QLatin1Char('.') + extension;
}

/** Only the first src of a part counts. If that is not safe, the part is called as the message calls it. */
void Naming::nameBySrc(const QSet<QString> &refused)
{
    QSet<int> meant;
    for (const Reference &reference : references) {
        const QString bare = bareId(reference.src);
        if (reference.part < 0 || meant.contains(reference.part)) {
            continue;
        }
        meant.insert(reference.part);
        const bool isSafe = !bare.isEmpty() && safeName(bare) == bare;
        if (isSafe && !taken.contains(bare) && !refused.contains(bareId(bare).toCaseFolded())) {
            taken.insert(bare);
            given[reference.part] = bare;
        }
    }
}

QString Naming::nameOf(int part) const
{
    const QString safe = safeName(message.parts.at(part).name);
    return safe.isEmpty() ? safeName(QString::number(part + 1) + extensionOf(message.mms.parts.at(part).type)) : safe;
}

QString Naming::freeName(int part)
{
    const QString name = nameOf(part);
    QString numbered = name;
    // No number is tried twice: a thousand parts of one name would take long.
    for (int &number = *numbers.insert(name, numbers.value(name, 1));
         taken.contains(numbered) || !claims.allow(numbered, part);) {
        numbered = numberedName(name, ++number);
    }
    return numbered;
}

QVector<QString> Naming::names(const QSet<QString> &refused)
{
    taken.clear();
    numbers.clear();
    given = QVector<QString>(message.parts.size());
    nameBySrc(refused);
    for (int i = 0; i < message.parts.size(); ++i) {
        if (given.at(i).isEmpty()) {
            given[i] = freeName(i);
            taken.insert(given.at(i));
        }
    }
    return given;
}

/** What finds these files in a folder, which lists them by name. */
static SmilParts finderOf(const QVector<QString> &names)
{
    QVector<int> order;
    for (int i = 0; i < int(names.size()); ++i) {
        order.append(i);
    }
    std::sort(order.begin(), order.end(), [&names](int one, int other) { return names.at(one) < names.at(other); });
    SmilParts finder;
    for (const int part : order) {
        finder.add(part, names.at(part));
    }
    return finder;
}

static QVector<Reference> referencesOf(const Message &message, const QStringList &srcs)
{
    QVector<Reference> references;
    QSet<QString> known;
    for (const QString &src : srcs) {
        if (!known.contains(src)) {
            known.insert(src);
            references.append({src, message.parts.find(src)});
        }
    }
    return references;
}

FileNames fileNames(const Message &message, const QStringList &srcs)
{
    const QVector<Reference> references = referencesOf(message, srcs);
    Naming naming(message, references);
    FileNames result;
    QSet<QString> refused;
    int before = -1;
    // A name that is good for one src may be found by another that means something else. A src can find two at most,
    // by what it is bare and by what that is decoded, so that this comes to an end at once.
    while (int(refused.size()) > before) {
        before = int(refused.size());
        result = {naming.names(refused), {}};
        const SmilParts finder = finderOf(result.names);
        for (const Reference &reference : references) {
            const int found = finder.find(reference.src);
            if (found >= 0 && found != reference.part) {
                refused.insert(bareId(result.names.at(found)).toCaseFolded());
            } else if (found != reference.part) {
                result.lost.append({reference.src, result.names.at(reference.part)});
            }
        }
    }
    return result;
}

FileNames fileNames(const Message &message)
{
    QStringList srcs;
    const SmilTimeline timeline(message.dom.documentElement());
    for (const SmilCue &cue : timeline.cues()) {
        srcs.append(cue.ref.src);
    }
    return fileNames(message, srcs);
}
