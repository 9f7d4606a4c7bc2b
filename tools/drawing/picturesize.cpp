// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/picturesize.h"

#include <QtCore/QDataStream>

// After the end of the data, a stream reads nothing but zeros.

template<typename Number>
static QSizeF widthAndHeight(QDataStream &in)
{
    Number width;
    Number height;
    in >> width >> height;
    return QSizeF(width, height);
}

/** Goes from segment to segment, up to the one that begins the picture. */
static QSizeF jpegSize(QDataStream &in)
{
    in.skipRawData(2);
    while (in.status() == QDataStream::Ok) {
        quint16 marker;
        quint16 length;
        in >> marker >> length;
        // Tables, and a marker that is not used, are among them.
        if (marker == 0xffc0 || (marker > 0xffc0 && marker < 0xffd0 && marker % 4 != 0)) {
            in.skipRawData(1);
            return widthAndHeight<quint16>(in).transposed();
        }
        if (marker < 0xff00 || length < 2 || in.skipRawData(length - 2) != length - 2) {
            break;
        }
    }
    return QSizeF();
}

QSizeF pictureSize(const QByteArray &data)
{
    QDataStream in(data);
    if (data.startsWith("\x89PNG")) {
        in.skipRawData(16);
        return widthAndHeight<quint32>(in);
    }
    if (data.startsWith("GIF8")) {
        in.setByteOrder(QDataStream::LittleEndian);
        in.skipRawData(6);
        return widthAndHeight<quint16>(in);
    }
    return data.startsWith("\xff\xd8") ? jpegSize(in) : QSizeF();
}
