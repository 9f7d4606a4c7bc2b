// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <optional>
#include <vector>

static const double largest = std::numeric_limits<double>::max();

namespace
{
/** The fields that state a length along one axis. */
struct Axis {
    SmilUnit SmilLayout::*root;
    SmilUnit SmilLayout::*top;
    SmilUnit SmilRegion::*before;
    SmilUnit SmilRegion::*length;
    SmilUnit SmilRegion::*after;
};

const Axis horizontal = {&SmilLayout::rootLayoutWidth, &SmilLayout::topLayoutWidth, &SmilRegion::left,
                         &SmilRegion::width, &SmilRegion::right};
const Axis vertical = {&SmilLayout::rootLayoutHeight, &SmilLayout::topLayoutHeight, &SmilRegion::top,
                       &SmilRegion::height, &SmilRegion::bottom};

struct Extent {
    double begin;
    double length;
};
}

class SmilScreenData : public QSharedData
{
public:
    QSizeF size = QSizeF(0, 0);
    QList<QRectF> regionRects;
    QMap<QString, int> regionIndexes;
};

static bool isLength(double pixels)
{
    return qIsFinite(pixels) && pixels > 0;
}

static double convert(const SmilUnit &measure, double whole)
{
    switch (measure.unit) {
    case SmilUnit::Px:
        return measure.value;
    case SmilUnit::Percent:
        return measure.value == 100 ? whole : measure.value * whole / 100; // 100 * x / 100 may differ from x
    case SmilUnit::In:
        return measure.value * 96;
    case SmilUnit::Cm:
        return measure.value * 96 / 2.54;
    case SmilUnit::Pt:
        return measure.value * 96 / 72;
    default:
        return qQNaN();
    }
}

/** The length in pixels; none when it is not stated. */
static std::optional<double> pixels(const SmilUnit &measure, double whole)
{
    const double length = measure.valid ? convert(measure, whole) : qQNaN();
    return qIsFinite(length) ? std::optional<double>(length) : std::nullopt;
}

/** The same, except for percent: what they are measured against is not known yet. */
static std::optional<double> absolutePixels(const SmilUnit &measure)
{
    return measure.unit == SmilUnit::Percent ? std::nullopt : pixels(measure, 0);
}

/** How far the farthest region reaches; 0 when none says so. */
static double reach(const QList<SmilRegion> &regions, const Axis &axis)
{
    double farthest = 0;
    for (const SmilRegion &region : regions) {
        const SmilUnit &before = region.*axis.before;
        const auto begin = pixels(before, 1) ? absolutePixels(before) : 0.0;
        const auto length = absolutePixels(region.*axis.length);
        const double end = begin && length ? *begin + std::max(0.0, *length) : 0;
        farthest = isLength(end) ? std::max(farthest, end) : farthest;
    }
    return farthest;
}

/** The side of the screen; 0 when it is not known. */
static double sideOf(const SmilLayout &layout, const Axis &axis, double device)
{
    for (SmilUnit SmilLayout::*const measure : {axis.root, axis.top}) {
        if (const auto length = pixels(layout.*measure, device); length && *length > 0) {
            return *length;
        }
    }
    return reach(layout.regions, axis);
}

/** A side in proportion to the other one, as those of the device are; the device's when the other is not known. */
static double inProportion(double other, double otherDevice, double device)
{
    const double side = other * (device / otherDevice);
    return isLength(side) ? side : device;
}

static QSizeF sizeOf(const SmilLayout &layout, const QSizeF &device)
{
    const double width = sideOf(layout, horizontal, device.width());
    const double height = sideOf(layout, vertical, device.height());
    return QSizeF(width > 0 ? width : inProportion(height, device.height(), device.width()),
                  height > 0 ? height : inProportion(width, device.width(), device.height()));
}

static Extent extentOf(const SmilRegion &region, const Axis &axis, double whole)
{
    const auto before = pixels(region.*axis.before, whole);
    const auto after = pixels(region.*axis.after, whole);
    const double rest = whole - before.value_or(0) - after.value_or(0);
    const double length = qBound(0.0, pixels(region.*axis.length, whole).value_or(rest), largest);
    const double begin = before ? *before : after ? whole - *after - length : 0;
    return {qBound(-largest, begin, largest), length};
}

SmilScreen::SmilScreen()
    : d(new SmilScreenData)
{
}

SmilScreen::SmilScreen(const SmilLayout &layout, const QSizeF &device)
    : d(new SmilScreenData)
{
    SmilScreenData &screen = *d;
    screen.size = sizeOf(
        layout,
        QSizeF(isLength(device.width()) ? device.width() : 240, isLength(device.height()) ? device.height() : 320));
    for (const SmilRegion &region : layout.regions) {
        const Extent width = extentOf(region, horizontal, screen.size.width());
        const Extent height = extentOf(region, vertical, screen.size.height());
        if (!region.id.isEmpty() && !screen.regionIndexes.contains(region.id)) {
            screen.regionIndexes.insert(region.id, int(screen.regionRects.size()));
        }
        screen.regionRects.append(QRectF(width.begin, height.begin, width.length, height.length));
    }
}

SmilScreen::SmilScreen(const SmilScreen &other) = default;
SmilScreen::SmilScreen(SmilScreen &&other) noexcept = default;
SmilScreen &SmilScreen::operator=(const SmilScreen &other) = default;
SmilScreen &SmilScreen::operator=(SmilScreen &&other) noexcept = default;
SmilScreen::~SmilScreen() = default;

QSizeF SmilScreen::size() const
{
    return d->size;
}

QList<QRectF> SmilScreen::regionRects() const
{
    return d->regionRects;
}

int SmilScreen::regionIndex(const QString &id) const
{
    return d->regionIndexes.value(id, -1);
}

/** The part of @p area that the one at @p index of so many gets. */
static QRectF share(const QRectF &area, int index, int number)
{
    if (area.width() > area.height()) {
        const double width = area.width() / number;
        return QRectF(qMin(largest, area.x() + width * index), area.y(), width, area.height());
    }
    const double height = area.height() / number;
    return QRectF(area.x(), qMin(largest, area.y() + height * index), area.width(), height);
}

QList<QRectF> SmilScreen::rects(const QList<SmilCue> &cues) const
{
    std::vector<QRectF> rectangles(cues.size());
    std::map<std::array<double, 4>, std::vector<int>> sharing;
    for (int i = 0; i < int(cues.size()); ++i) {
        const SmilRef &ref = cues.at(i).ref;
        if (ref.type != SmilRef::Audio) {
            const QRectF area = d->regionRects.value(regionIndex(ref.region), QRectF(QPointF(), d->size));
            sharing[{area.x(), area.y(), area.width(), area.height()}].push_back(i);
            rectangles[i] = area;
        }
    }
    for (const auto &[area, sharers] : sharing) {
        int index = 0;
        for (const int cue : sharers) {
            rectangles[cue] = share(rectangles[cue], index++, int(sharers.size()));
        }
    }
    return QList<QRectF>(rectangles.begin(), rectangles.end());
}
