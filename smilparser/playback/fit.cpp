// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <limits>

/** The size of the picture's shape that is as wide or as high as the area: the smaller one, or to cover, the larger. */
static QSizeF scaled(const QSizeF &picture, const QSizeF &area, bool cover)
{
    const double horizontal = area.width() / picture.width();
    const double vertical = area.height() / picture.height();
    return (horizontal < vertical) != cover ? QSizeF(area.width(), picture.height() * horizontal)
                                            : QSizeF(picture.width() * vertical, area.height());
}

static QSizeF sizeIn(const QSizeF &area, const QSizeF &picture, const QString &fit)
{
    const bool fits = picture.width() <= area.width() && picture.height() <= area.height();
    if (fits
        && (fit == QLatin1String("hidden") || fit == QLatin1String("scroll") || fit == QLatin1String("meetBest"))) {
        return picture;
    }
    return scaled(picture, area, fit == QLatin1String("slice"));
}

QRectF SmilScreen::fitted(const QSizeF &picture, const QRectF &area, const QString &fit)
{
    QSizeF size(0, 0);
    if (qIsFinite(picture.width()) && qIsFinite(picture.height()) && !picture.isEmpty()) {
        if (fit == QLatin1String("fill")) {
            return area;
        }
        size = sizeIn(area.size(), picture, fit);
    }
    const double largest = std::numeric_limits<double>::max();
    QRectF rectangle(QPointF(), size.expandedTo(QSizeF(0, 0)).boundedTo(QSizeF(largest, largest)));
    const QPointF centre = area.center();
    rectangle.moveCenter({qBound(-largest, centre.x(), largest), qBound(-largest, centre.y(), largest)});
    return rectangle;
}
