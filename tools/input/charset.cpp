// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "charset.h"

#include <QtCore/QtEndian>

static QString fromUtf16(const QByteArray &bytes, bool littleEndian)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    if (littleEndian) {
        qFromLittleEndian<quint16>(bytes.constData(), text.size(), text.data());
    } else {
        qFromBigEndian<quint16>(bytes.constData(), text.size(), text.data());
    }
    return text;
}

QString decoded(const QByteArray &bytes, quint64 charset)
{
    // With their size: without it, Qt 5 ends the text at the first zero.
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return QString::fromUtf8(bytes.constData() + 3, bytes.size() - 3);
    }
    if (bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")) {
        return fromUtf16(bytes.mid(2), bytes.startsWith('\xFF'));
    }
    switch (charset) {
    case 1000: // UCS-2
    case 1013: // UTF-16BE
    case 1014: // UTF-16LE
    case 1015: // UTF-16
        return fromUtf16(bytes, charset == 1014);
    case 4:
        return QString::fromLatin1(bytes.constData(), bytes.size());
    default:
        break;
    }
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    return text.toUtf8() == bytes ? text : QString::fromLatin1(bytes.constData(), bytes.size());
}

QString decodedBeginning(const QByteArray &bytes, int most)
{
    // No broken character at the end: what is not all UTF-8 would be taken for Latin-1.
    auto size = qMin<qsizetype>(bytes.size(), 4 * qsizetype(most));
    while (size > 0 && size < bytes.size() && (uchar(bytes.at(size)) & 0xc0) == 0x80) {
        --size;
    }
    return decoded(bytes.left(size)).left(most);
}
