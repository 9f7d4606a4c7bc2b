// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/timetext.h"

#include <QtCore/qnumeric.h>

static QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString lengthText(double seconds)
{
    return qIsFinite(seconds) ? QString::number(seconds) + QLatin1Char('s') : QString(QChar(0x221e));
}

QString clockText(double seconds)
{
    if (!(seconds < 1e9)) { // what follows has no room for more than a few million times that
        return lengthText(seconds);
    }
    const qint64 thousandths = qRound64(1000 * seconds);
    const qint64 whole = thousandths / 1000;
    const QString minutes = whole < 3600
        ? QString::number(whole / 60)
        : QString::number(whole / 3600) + QLatin1Char(':') + twoDigits(whole / 60 % 60);
    const QString clock = minutes + QLatin1Char(':') + twoDigits(whole % 60);
    const qint64 rest = thousandths % 1000;
    return rest == 0 ? clock : clock + QStringLiteral(".%1").arg(rest, 3, 10, QLatin1Char('0'));
}
