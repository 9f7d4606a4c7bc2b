// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "characters.h"

static QString character(uint code)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    if (QChar::requiresSurrogates(code)) {
        return QString(QChar(QChar::highSurrogate(code))) + QChar(QChar::lowSurrogate(code));
    }
#endif
    return QChar(ushort(code)); // Qt 5 takes the lower half of any number
}

QString expandCharacters(const QString &text)
{
    QString result;
    int at = 0;
    for (int reference; (reference = text.indexOf(QLatin1String("&#"), at)) >= 0;) {
        const int end = text.indexOf(QLatin1Char(';'), reference);
        const bool hexadecimal = text.mid(reference + 2, 1) == QLatin1String("x");
        const int digits = reference + (hexadecimal ? 3 : 2);
        bool understood = false;
        const uint code = text.mid(digits, end - digits).toUInt(&understood, hexadecimal ? 16 : 10);
        if (end < 0 || !understood) {
            break;
        }
        result += text.mid(at, reference - at) + character(code);
        at = end + 1;
    }
    return result + text.mid(at);
}
