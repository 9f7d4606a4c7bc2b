// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output/filenames.h"
#include "output/safename.h"

#include <QtCore/QMimeDatabase>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <set>

/** The name without what may stand around it, which no file is called for. */
static QString bare(QString name)
{
    static const QRegularExpression around(QStringLiteral("^\"?(cid:)?<?|>?\"?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return name.remove(around);
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

static QString nameOf(int part, const Message &message)
{
    const QString safe = safeName(bare(message.parts.at(part).name));
    return safe.isEmpty()
        ? safeName(QString::number(part + 1)
                   + extensionOf(message.mms.parts.at(part).type.section(QLatin1Char(';'), 0, 0).trimmed()))
        : safe;
}

QVector<QString> fileNames(const Message &message, const QStringList &srcs)
{
    QVector<QString> names(message.parts.size());
    std::set<QString> taken; // in no letter case: the cards of phones know none
    const auto give = [&](int part, const QString &name) {
        const bool isFree = taken.insert(name.toCaseFolded()).second;
        names[part] = isFree ? name : QString();
        return isFree;
    };
    for (const QString &src : srcs) {
        const int part = message.parts.find(src);
        const QString name = bare(src);
        if (part >= 0 && names.at(part).isEmpty() && !name.isEmpty() && safeName(name) == name) {
            give(part, name);
        }
    }
    int number = 1; // for all names: none is tried twice, however many parts have names that differ at the end only
    for (int part = 0; part < int(names.size()); ++part) {
        const QString name = names.at(part).isEmpty() ? nameOf(part, message) : QString();
        if (!name.isEmpty() && !give(part, name)) {
            while (!give(part, numberedName(name, ++number))) { }
        }
    }
    return names;
}
