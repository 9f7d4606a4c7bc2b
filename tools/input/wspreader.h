// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_WSPREADER_H
#define SMILTOOL_WSPREADER_H

#include <QtCore/QString>

/**
 * Bytes of a message in the encoding of its headers, read from the front. What is not there reads as nothing, and
 * makes them bad for good. See WAP-230-WSP section 8.
 */
struct WspReader {
    enum Kind { Number, Text, Data };
    const char *at;
    const char *end;
    Kind kind = Data; ///< as the value of a header or of a parameter
    bool bad = false;

    bool more() const { return !bad && at != end; }
    uchar peek() const { return more() ? uchar(*at) : 0; }
    uchar byte() { return uchar(*take(1).at); }
    QByteArray all() const { return QByteArray(at, QByteArray::size_type(end - at)); }

    WspReader take(quint64 length, Kind as = Data);

    /** A number in up to five bytes of seven bits; the highest bit says that another byte follows. */
    quint64 uintvar();

    /** The first byte of a value says where it ends, whatever it is the value of. */
    WspReader value();

    /** That which this is as a value, the first byte's highest bit left out if it is of one byte. */
    quint64 number() const;

    /** Whether this calls a header or a parameter by its number or its name. */
    bool is(quint64 assigned, const char *name) const;
};

/** The content type that has the number, such as "image/jpeg"; "0x7b" for a number that messages are not made of. */
QString mediaType(quint64 number);

/** The charset that has the number, such as "utf-8"; null for one that texts in messages are not written in. */
QString charsetName(quint64 number);

#endif
