// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/assignednumbers.h"

// Of the public lists of assigned numbers, what messages are made of.
static const struct {
    quint64 number;
    const char *name;
} mediaTypes[] =
    {
        {0x02, "text/html"},
        {0x03, "text/plain"},
        {0x07, "text/x-vcard"},
        {0x0B, "multipart/*"},
        {0x0C, "multipart/mixed"},
        {0x0F, "multipart/alternative"},
        {0x1D, "image/gif"},
        {0x1E, "image/jpeg"},
        {0x20, "image/png"},
        {0x21, "image/vnd.wap.wbmp"},
        {0x22, "application/vnd.wap.multipart.*"},
        {0x23, "application/vnd.wap.multipart.mixed"},
        {0x26, "application/vnd.wap.multipart.alternative"},
        {0x33, "application/vnd.wap.multipart.related"},
},
  charsets[] = {
      {3, "us-ascii"},
      {4, "iso-8859-1"},
      {5, "iso-8859-2"},
      {8, "iso-8859-5"},
      {9, "iso-8859-6"},
      {10, "iso-8859-7"},
      {11, "iso-8859-8"},
      {12, "iso-8859-9"},
      {17, "shift_jis"},
      {18, "euc-jp"},
      {38, "euc-kr"},
      {39, "iso-2022-jp"},
      {106, "utf-8"},
      {111, "iso-8859-15"},
      {113, "gbk"},
      {114, "gb18030"},
      {1000, "iso-10646-ucs-2"},
      {1013, "utf-16be"},
      {1014, "utf-16le"},
      {1015, "utf-16"},
      {2025, "gb2312"},
      {2026, "big5"},
      {2084, "koi8-r"},
      {2250, "windows-1250"},
      {2251, "windows-1251"},
      {2252, "windows-1252"},
      {2253, "windows-1253"},
      {2254, "windows-1254"},
      {2255, "windows-1255"},
      {2256, "windows-1256"},
};

template<typename Table>
static QString nameOf(quint64 number, const Table &table)
{
    for (const auto &row : table) {
        if (row.number == number) {
            return QLatin1String(row.name);
        }
    }
    return QString();
}

QString mediaType(quint64 number)
{
    const QString name = nameOf(number, mediaTypes);
    return name.isNull() ? QStringLiteral("0x%1").arg(number, 2, 16, QLatin1Char('0')) : name;
}

QString charsetName(quint64 number)
{
    return nameOf(number, charsets);
}
