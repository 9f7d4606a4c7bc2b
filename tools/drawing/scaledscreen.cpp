// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/scaledscreen.h"
#include "base/bounds.h"

static bool canBeDrawn(double side)
{
    return side >= 1 && side <= bounds::screen;
}

static SmilScreen screenOf(SmilLayout layout)
{
    const SmilScreen screen(layout);
    if (canBeDrawn(screen.size().width()) && canBeDrawn(screen.size().height())) {
        return screen;
    }
    const QSizeF phone = SmilScreen(SmilLayout()).size();
    layout.rootLayoutWidth = SmilUnit(phone.width(), SmilUnit::Px);
    layout.rootLayoutHeight = SmilUnit(phone.height(), SmilUnit::Px);
    return SmilScreen(layout);
}

QRectF scaled(const QRectF &rectangle, double scale)
{
    return QRectF(rectangle.topLeft() * scale, rectangle.size() * scale);
}

ScaledScreen::ScaledScreen(const SmilLayout &layout)
    : pixels(screenOf(layout))
    , scale(qMin(frameWidth / pixels.size().width(), frameHeight / pixels.size().height()))
    , size(pixels.size() * scale)
{
}

QRectF ScaledScreen::visible(const QRectF &place) const
{
    return scaled(place.intersected(QRectF(QPointF(), pixels.size())), scale);
}
