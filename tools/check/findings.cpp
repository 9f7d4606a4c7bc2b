// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "check/findings.h"
#include "base/bounds.h"
#include "base/escaping.h"

#include <algorithm>

static const int shownDetails = 3;

const QStringList &findingNames()
{
    static const QStringList names =
        QStringLiteral(
            "unread-measure wrong-measure unknown-region unused-region duplicate-region missing-id missing-src "
            "empty-timeline blank-time crowded-slide nested-timeline no-smil missing-part duplicate-part "
            "unused-part wrong-kind lost moved-top-size lost-in-body lost-element lost-attribute "
            "changed-order")
            .split(QLatin1Char(' '));
    return names;
}

QString excerpt(const QString &text)
{
    return quoted(shortened(text, bounds::quotation));
}

void Findings::add(const char *name, int line, const QString &subject, const QString &detail)
{
    const auto [index, isNew] = indexes.try_emplace(subject, int(entries.size()));
    if (isNew) {
        entries.append({QLatin1String(name), line, subject, {}, 0});
    }
    Entry &entry = entries[index->second];
    ++entry.count;
    entry.line = qMin(entry.line, line);
    if (!detail.isEmpty() && entry.details.size() <= shownDetails && !entry.details.contains(detail)) {
        entry.details.append(entry.details.size() < shownDetails ? detail : QStringLiteral("..."));
    }
}

QStringList Findings::lines(const QString &file, const QStringList &ignored) const
{
    QList<Entry> sorted = entries;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Entry &a, const Entry &b) { return a.line < b.line; });
    const QString lost = QStringLiteral("lost");
    QStringList lines;
    for (const Entry &entry : std::as_const(sorted)) {
        const bool isLost = findingNames().indexOf(entry.name) > findingNames().indexOf(lost);
        if (ignored.contains(entry.name) || (isLost && ignored.contains(lost))) {
            continue;
        }
        const QString place = entry.line > 0 ? QLatin1Char(':') + QString::number(entry.line) : QString();
        QString text = printable(file) + place + QLatin1String(": ") + entry.subject;
        if (!entry.details.isEmpty()) {
            text += QLatin1Char(' ') + entry.details.join(QLatin1String(", "));
        }
        if (entry.count > 1) {
            text += QStringLiteral(" (%1 times)").arg(entry.count);
        }
        lines.append(text + QLatin1String(" [") + entry.name + QLatin1Char(']'));
    }
    return lines;
}
