// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/frame.h"

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

/**
 * The size in pixels that a picture states, without looking at the picture itself; empty when it is no PNG, JPEG or
 * GIF, or cut off before its size. Qt reads that only in the library that draws windows, which is larger than all else
 * that the tool needs.
 */
static QSizeF pictureSize(const QByteArray &data)
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

void Media::draw(const Shown &shown)
{
    QByteArray what;
    QDataStream(&what, QIODevice::WriteOnly) << shown.part << shown.place << shown.fit << shown.name << shown.words;
    QString &id = drawn[what];
    if (!id.isNull()) {
        svg.reuse(id);
        return;
    }
    id = QStringLiteral("p%1").arg(drawn.size());
    const MessageParts::Part &part = parts.read(shown.part);
    svg.beginClip(shown.area, id);
    svg.title(shown.words);
    const bool pictured = isPicture(part.type);
    const bool isTooLarge = pictured && part.data.size() > left;
    if (isTooLarge) {
        parts.leaveOut(shown.part,
                       QStringLiteral("would be more than %1 MiB with the pictures before it")
                           .arg(bounds::pictures / bounds::mebibyte));
    }
    if (isTooLarge || drawn.size() > bounds::drawn) {
        svg.text(QPointF(4, 0.75 * lineHeight), shown.name);
    } else if (pictured) {
        drawPicture(part, shown);
    } else {
        drawText(shown.part, shown.area.size());
    }
    svg.endGroup();
}

void Media::drawPicture(const MessageParts::Part &part, const Shown &shown)
{
    // A place may reach as far as numbers do, where a viewer finds nothing.
    const QRectF near(-bounds::screen, -bounds::screen, 3 * bounds::screen, 3 * bounds::screen);
    const QRectF place = shown.place.intersected(near);
    const QSizeF size = pictureSize(part.data);
    const QRectF fitted = size.isEmpty() ? place : SmilScreen::fitted(size, place, shown.fit);
    svg.image(part.type, part.data, scaled(fitted, scale).translated(-shown.area.topLeft()),
              shown.fit == QLatin1String("fill"));
    left -= part.data.size();
}

void Media::drawText(int part, const QSizeF &size)
{
    const int count = qMax(1, int(size.height() / lineHeight));
    const int enough = count * (int(size.width() / narrowestLetter) + 2);
    const QStringList lines = wrapped(withoutFormat(parts.beginning(part, enough)), size.width() - 8, count);
    for (int i = 0; i < lines.size(); ++i) {
        const bool rightToLeft = lines.at(i).isRightToLeft();
        svg.text(QPointF(rightToLeft ? size.width() - 4 : 4, (i + 0.75) * lineHeight), lines.at(i),
                 rightToLeft ? QStringLiteral("rtl") : QString());
    }
}
