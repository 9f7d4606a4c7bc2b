// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/wspreader.h"

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
