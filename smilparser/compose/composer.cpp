// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "names.h"

#include "smilparser/model/duration.h"
#include "smilparser/model/slots.h"

#include <smilparser/smilcomposer.h>

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <cmath>

static const QString imageRegion = QStringLiteral("Image");
static const QString textRegion = QStringLiteral("Text");

static Slots slotsOf(const SmilNode &slide)
{
    Slots slots = 0;
    for (const SmilRef &ref : slide.refs) {
        slots |= slotsOf(ref.type);
    }
    return slots;
}

static QString regionOf(Slots slots)
{
    return has(slots, Slot::Visual) ? imageRegion : has(slots, Slot::Text) ? textRegion : QString();
}

/** A shorter or longer one would be written with an exponent, which phones do not read. */
static double duration(double seconds, double otherwise)
{
    return isDuration(seconds) ? qBound(0.001, seconds, 999999.0) : otherwise;
}

/** The measure as it is read back after it was written. */
static SmilUnit rounded(double value, SmilUnit::Unit unit)
{
    return SmilUnit(SmilUnit(value, unit).toString());
}

static SmilUnit side(double pixels)
{
    return qIsFinite(pixels) && pixels >= 1 ? rounded(std::round(pixels), SmilUnit::Px) : SmilUnit();
}

/** A region of the screen's whole width. */
static SmilRegion region(const QString &id, double top, double height, const QString &fit)
{
    SmilRegion region;
    region.id = id;
    region.left = SmilUnit(0, SmilUnit::Percent);
    region.top = SmilUnit(top, SmilUnit::Percent);
    region.width = SmilUnit(100, SmilUnit::Percent);
    region.height = SmilUnit(height, SmilUnit::Percent);
    region.fit = fit;
    return region;
}

/** The regions of a message whose slides take these slots. */
static QList<SmilRegion> regionsOf(Slots slots)
{
    const double upper = !has(slots, Slot::Visual) ? 0 : has(slots, Slot::Text) ? 70 : 100;
    QList<SmilRegion> regions;
    if (has(slots, Slot::Visual)) {
        regions.append(region(imageRegion, 0, upper, QStringLiteral("meet")));
    }
    if (has(slots, Slot::Text)) {
        regions.append(region(textRegion, upper, 100 - upper, QStringLiteral("scroll")));
    }
    return regions;
}

class SmilComposerData : public QSharedData
{
public:
    QSizeF size;
    double slideDuration;
    bool slideEnded;
    QList<SmilNode> slides; ///< SmilNode::dur is not valid yet; it holds the longest duration known, or 0
    QMap<QString, int> names; ///< for newName()
};

SmilComposer::SmilComposer(const QSizeF &screen, double slideDuration)
    : d(new SmilComposerData{{}, screen, duration(slideDuration, 5), true, {}, {}})
{
}

SmilComposer::SmilComposer(const SmilComposer &other) = default;
SmilComposer::SmilComposer(SmilComposer &&other) noexcept = default;
SmilComposer &SmilComposer::operator=(const SmilComposer &other) = default;
SmilComposer &SmilComposer::operator=(SmilComposer &&other) noexcept = default;
SmilComposer::~SmilComposer() = default;

QString SmilComposer::add(SmilRef::Type type, const QString &name, double seconds)
{
    const Slots slots = slotsOf(type);
    if (!slots) {
        return QString();
    }
    if (d->slideEnded || (slots & slotsOf(d->slides.last()))) {
        d->slides.append(SmilNode());
        d->slideEnded = false;
    }
    SmilRef ref(type);
    ref.src = this->name(name);
    ref.region = regionOf(slots);
    SmilNode &slide = d->slides.last();
    slide.refs.append(ref);
    slide.dur.value = std::max(slide.dur.value, duration(seconds, type == SmilRef::Audio ? 0 : d->slideDuration));
    return ref.src;
}

QString SmilComposer::name(const QString &name)
{
    return newName(plainName(name), d->names);
}

void SmilComposer::nextSlide()
{
    d->slideEnded = true;
}

SmilDocument SmilComposer::message() const
{
    SmilDocument message;
    QList<SmilNode> &slides = message.body.root.children;
    slides = d->slides;
    Slots slots = 0;
    for (SmilNode &slide : slides) {
        slots |= slotsOf(slide);
        slide.dur = rounded(slide.dur.value > 0 ? slide.dur.value : d->slideDuration, SmilUnit::Sec);
    }
    SmilLayout &layout = message.header.layout;
    layout.rootLayoutWidth = layout.topLayoutWidth = side(d->size.width());
    layout.rootLayoutHeight = layout.topLayoutHeight = side(d->size.height());
    layout.regions = regionsOf(slots);
    return message;
}
