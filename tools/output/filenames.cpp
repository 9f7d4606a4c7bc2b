// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "input/content.h"
#include "output/outputfile.h"

#include <QtCore/QMimeDatabase>
#include <QtCore/QRegularExpression>

#include <set>
#include <string>

/** The name without what may stand around it, which no file is called for. */
static QString bare(QString name)
{
    static const QRegularExpression around(QStringLiteral("^\"?(cid:)?<?|>?\"?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    return name.remove(around);
}

/** The name with a suffix before its extension, and as much of its beginning as there is room for. */
static QString fitted(const QString &name, const QString &suffix)
{
    const int longest = 16;
    const auto dot = name.lastIndexOf(QLatin1Char('.'));
    const QString extension = dot > 0 && name.size() - dot <= longest ? name.mid(dot) : QString();
    const auto most = bounds::fileName - (suffix + extension).toUtf8().size();
    QString kept = name.chopped(extension.size()).left(bounds::fileName);
    while (kept.toUtf8().size() > most || (!kept.isEmpty() && kept.at(kept.size() - 1).isHighSurrogate())) {
        kept.chop(1);
    }
    return kept + suffix + extension;
}

QString safeName(const QString &name)
{
    std::u32string kept;
    for (const char32_t c : name.toStdU32String()) { // with U+FFFD for half a surrogate pair
        const bool begins = c != '.' && c != '-' && !QChar::isSpace(c);
        if (c == '/' || c == '\\') {
            kept.clear();
        } else if (!needsEscaping(c) && (begins || !kept.empty())) {
            kept += c;
        }
    }
    return fitted(QString::fromStdU32String(kept), QString());
}

static QString nameOf(int part, const Message &message)
{
    const QString safe = safeName(bare(message.parts.at(part).name));
    const QString type = recognisedType(message.mms.data.at(part));
    const QString extension = QMimeDatabase().mimeTypeForName(type).preferredSuffix();
    return !safe.isEmpty()    ? safe
        : extension.isEmpty() ? QString::number(part + 1)
                              : QStringLiteral("%1.%2").arg(part + 1).arg(extension);
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
    int number = 1; // as in "photo-2.jpg"; one for all, so that parts of like names do not try all numbers each
    for (int part = 0; part < int(names.size()); ++part) {
        const QString name = names.at(part).isEmpty() ? nameOf(part, message) : QString();
        if (!name.isEmpty() && !give(part, name)) {
            while (!give(part, fitted(name, QStringLiteral("-%1").arg(++number)))) { }
        }
    }
    return names;
}
