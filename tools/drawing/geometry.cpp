// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "geometry.h"
#include "bounds.h"

static const double pixelsPerInch = 96;
static const QSizeF phone(240, 320);

/** The distance in pixels; @p otherwise when it is none. */
static double pixels(const SmilUnit &measure, double whole, double otherwise)
{
    if (!measure.valid) {
        return otherwise;
    }
    switch (measure.unit) {
    case SmilUnit::Pt:
        return measure.value * pixelsPerInch / 72;
    case SmilUnit::In:
        return measure.value * pixelsPerInch;
    case SmilUnit::Cm:
        return measure.value * pixelsPerInch / 2.54;
    case SmilUnit::Px:
        return measure.value;
    case SmilUnit::Percent:
        return measure.value * whole / 100;
    default:
        return otherwise;
    }
}

/** From the first edge to the second of a region along one axis, on the screen. */
static QPair<double, double> extent(const SmilUnit &first, const SmilUnit &size, const SmilUnit &second, double whole)
{
    const double nowhere = -1e9;
    const double before = pixels(first, whole, nowhere);
    const double after = pixels(second, whole, nowhere);
    const double length = pixels(size, whole, whole - (before > nowhere ? before : 0) - (after > nowhere ? after : 0));
    const double begin = before > nowhere ? before : after > nowhere ? whole - after - length : 0;
    return {qBound(0.0, begin, whole), qBound(0.0, begin + length, whole)};
}

static double rootLength(const SmilUnit &root, const SmilUnit &top, double otherwise)
{
    const double length = pixels(root, otherwise, pixels(top, otherwise, otherwise));
    return length >= 1 && length <= bounds::screen ? length : otherwise;
}

QSizeF rootSize(const SmilLayout &layout)
{
    return {rootLength(layout.rootLayoutWidth, layout.topLayoutWidth, phone.width()),
            rootLength(layout.rootLayoutHeight, layout.topLayoutHeight, phone.height())};
}

QRectF areaOf(const SmilRegion &region, const QSizeF &root)
{
    const auto across = extent(region.left, region.width, region.right, root.width());
    const auto down = extent(region.top, region.height, region.bottom, root.height());
    return QRectF(QPointF(across.first, down.first), QPointF(across.second, down.second));
}
