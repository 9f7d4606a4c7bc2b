// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "contentid.h"

QString bareId(const QString &id)
{
    QString bare = id;
    for (const QLatin1String start : {QLatin1String("\""), QLatin1String("cid:"), QLatin1String("<")}) {
        bare.remove(0, bare.startsWith(start, Qt::CaseInsensitive) ? int(start.size()) : 0);
    }
    for (const char end : {'"', '>'}) {
        bare.chop(bare.endsWith(QLatin1Char(end)) ? 1 : 0);
    }
    return bare;
}
