// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/wspreader.h"

#include <QtCore/QStringList>

#include <cstring>

WspReader WspReader::take(quint64 length, Kind as)
{
    static const char nothing = 0;
    bad = bad || length > quint64(end - at);
    if (bad) {
        return {&nothing, &nothing, as};
    }
    at += length;
    return {at - length, at, as};
}

quint64 WspReader::uintvar()
{
    quint64 result = 0;
    uchar digits = 0x80;
    for (int i = 0; i < 5 && digits >= 0x80; ++i) {
        digits = byte();
        result = result << 7 | (digits & 0x7F);
    }
    bad = bad || digits >= 0x80;
    return result;
}

WspReader WspReader::value()
{
    const uchar first = peek();
    if (first >= 0x80) {
        return take(1, Number);
    }
    if (first < 0x20) {
        byte();
        return take(first < 31 ? first : uintvar());
    }
    take(first == 0x7F ? 1 : 0); // goes before a text that begins with 0x80 or more
    const WspReader text = take(strnlen(at, size_t(end - at)), Text);
    byte();
    return text;
}

quint64 WspReader::number() const
{
    quint64 result = 0;
    for (const char *digit = at; digit != end; ++digit) {
        result = result << 8 | uchar(*digit);
    }
    return kind == Number ? result & 0x7F : result;
}

bool WspReader::is(quint64 assigned, const char *name) const
{
    return kind == Number ? number() == assigned : kind == Text && qstrnicmp(at, end - at, name) == 0;
}

/** The word after the number in a list of numbers and names in turn; null if the number is not there. */
static QString nameOf(quint64 number, const QStringList &words)
{
    const auto place = words.indexOf(QString::number(number));
    return place < 0 ? QString() : words.at(place + 1);
}

// Of the public lists of assigned numbers, what messages are made of.

QString mediaType(quint64 number)
{
    static const QStringList names =
        QStringLiteral("2 text/html 3 text/plain 7 text/x-vcard 11 multipart/* 12 multipart/mixed "
                       "15 multipart/alternative 29 image/gif 30 image/jpeg 32 image/png 33 image/vnd.wap.wbmp "
                       "34 application/vnd.wap.multipart.* 35 application/vnd.wap.multipart.mixed "
                       "38 application/vnd.wap.multipart.alternative 51 application/vnd.wap.multipart.related")
            .split(QLatin1Char(' '));
    const QString name = nameOf(number, names);
    return name.isNull() ? QStringLiteral("0x%1").arg(number, 2, 16, QLatin1Char('0')) : name;
}

QString charsetName(quint64 number)
{
    static const QStringList names =
        QStringLiteral("3 us-ascii 4 iso-8859-1 5 iso-8859-2 8 iso-8859-5 9 iso-8859-6 10 iso-8859-7 11 iso-8859-8 "
                       "12 iso-8859-9 17 shift_jis 18 euc-jp 38 euc-kr 39 iso-2022-jp 106 utf-8 111 iso-8859-15 "
                       "113 gbk 114 gb18030 1000 iso-10646-ucs-2 1013 utf-16be 1014 utf-16le 1015 utf-16 2025 gb2312 "
                       "2026 big5 2084 koi8-r 2250 windows-1250 2251 windows-1251 2252 windows-1252 "
                       "2253 windows-1253 2254 windows-1254 2255 windows-1255 2256 windows-1256")
            .split(QLatin1Char(' '));
    return nameOf(number, names);
}
