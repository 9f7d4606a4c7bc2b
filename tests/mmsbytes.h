// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_MMSBYTES_H
#define SMILPARSER_MMSBYTES_H

#include <QtCore/QByteArray>

// What a message as it is sent is made of.

inline QByteArray uintvar(int number)
{
    QByteArray bytes(1, char(number & 0x7F));
    while (number >>= 7) {
        bytes.prepend(char(number | 0x80));
    }
    return bytes;
}

inline QByteArray text(const QByteArray &bytes)
{
    return bytes + '\0';
}

/** The bytes after their length, as a value. */
inline QByteArray sized(const QByteArray &bytes)
{
    return (bytes.size() < 31 ? QByteArray(1, char(bytes.size())) : '\x1F' + uintvar(int(bytes.size()))) + bytes;
}

inline QByteArray part(const QByteArray &headers, const QByteArray &data)
{
    return uintvar(int(headers.size())) + uintvar(int(data.size())) + headers + data;
}

inline QByteArray message(const QByteArray &contentType, int count, const QByteArray &parts)
{
    return QByteArray("\x8C\x80\x8D\x92") + '\x84' + contentType + uintvar(count) + parts;
}

#endif
