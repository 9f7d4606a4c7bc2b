// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output/safename.h"
#include "base/bounds.h"
#include "base/escaping.h"

#include <string>

static QString extensionOf(const QString &name)
{
    const int longest = 16;
    const auto dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && name.size() - dot <= longest ? name.mid(dot) : QString();
}

/** As much of the beginning as there is room for, and the end. */
static QString fitted(const QString &beginning, const QString &end)
{
    const auto most = bounds::fileName - end.toUtf8().size();
    QString kept = beginning.left(bounds::fileName);
    while (kept.toUtf8().size() > most || (!kept.isEmpty() && kept.at(kept.size() - 1).isHighSurrogate())) {
        kept.chop(1);
    }
    return kept + end;
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
    const QString safe = QString::fromStdU32String(kept);
    const QString extension = extensionOf(safe);
    return fitted(safe.chopped(extension.size()), extension);
}

QString numberedName(const QString &safe, int number)
{
    const QString extension = extensionOf(safe);
    return fitted(safe.chopped(extension.size()), QStringLiteral("-%1%2").arg(number).arg(extension));
}
