// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "names.h"

#include <algorithm>

static const int longest = 27;
static const int longestExtension = 8;

static bool isPlain(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'.' || c == u'-'
        || c == u'_';
}

QString plainName(const QString &name)
{
    const auto isDivider = [](QChar c) { return c == u'/' || c == u'\\'; };
    const auto isHidden = [](QChar c) { return c == u'.' || c == u'-'; };
    const auto file = std::find_if(name.rbegin(), name.rend(), isDivider).base();
    const auto begin = std::find_if_not(file, name.end(), isHidden);
    if (begin == name.end()) {
        return QStringLiteral("part");
    }
    QString plain = name.mid(int(begin - name.begin()));
    std::replace_if(
        plain.begin(), plain.end(), [](QChar c) { return !isPlain(c); }, u'_');
    return plain;
}

/** The length of the extension with its dot; 0 without one. */
static int extensionSize(const QString &plain)
{
    const qint64 size = plain.size() - plain.lastIndexOf(u'.');
    return size > 1 && size <= 1 + longestExtension && size < plain.size() ? int(size) : 0;
}

QString newName(const QString &plain, QMap<QString, int> &names)
{
    const QString extension = plain.right(extensionSize(plain));
    const int room = longest - int(extension.size());
    const QString stem = plain.left(int(qMin<qint64>(plain.size() - extension.size(), room)));
    const auto isNew = [&names](const QString &name) {
        const auto size = names.size();
        names.insert(name.toLower(), 0);
        return names.size() > size;
    };
    const QString unnumbered = stem + extension;
    if (isNew(unnumbered)) {
        return unnumbered;
    }
    for (int digits = 1, first = 2, end = 10;; ++digits, first = end, end *= 10) {
        // Different stems may become the same when they are cut for a number. Each goes on where the other left off.
        const QString front = stem.left(room - 1 - digits) + u'-';
        int &number = names[(front + QString(digits, u'/') + extension).toLower()];
        for (number = qMax(number, first); number < end; ++number) {
            const QString numbered = front + QString::number(number) + extension;
            if (isNew(numbered)) {
                return numbered;
            }
        }
    }
}
