// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "names.h"

#include <smilparser/smilcomposer.h>

#include <QtCore/qnumeric.h>

#include <algorithm>
#include <cmath>

namespace
{
/** What a slide has room for once. */
enum Room { Sight = 1, Words = 2, Sound = 4 };
}

static const QString imageRegion = QStringLiteral("Image");
static const QString textRegion = QStringLiteral("Text");

/** The rooms that a medium takes, as bits; 0 for one of no kind that is known. */
static int roomsOf(int type)
{
    switch (type) {
    case SmilRef::Text:
        return Words;
    case SmilRef::Audio:
        return Sound;
    case SmilRef::Video:
        return Sight | Sound;
    case SmilRef::Img:
    case SmilRef::Ref:
        return Sight;
    default:
        return 0;
    }
}

static int roomsOf(const SmilNode &slide)
{
    int rooms = 0;
    for (const SmilRef &ref : slide.refs) {
        rooms |= roomsOf(ref.type);
    }
    return rooms;
}

static QString regionOf(int rooms)
{
    return rooms & Sight ? imageRegion : rooms & Words ? textRegion : QString();
}

/** Phones read no exponent, with which a shorter or longer one would be written. */
static double duration(double seconds, double otherwise)
{
    return qIsFinite(seconds) && seconds > 0 ? qBound(0.001, seconds, 999999.0) : otherwise;
}

/** What is read again of the measure when it has been written. */
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

/** Those of a message whose slides take these rooms. */
static QList<SmilRegion> regionsOf(int rooms)
{
    const double upper = !(rooms & Sight) ? 0 : rooms & Words ? 70 : 100;
    QList<SmilRegion> regions;
    if (rooms & Sight) {
        regions.append(region(imageRegion, 0, upper, QStringLiteral("meet")));
    }
    if (rooms & Words) {
        regions.append(region(textRegion, upper, 100 - upper, QStringLiteral("scroll")));
    }
    return regions;
}

SmilComposer::SmilComposer(const QSizeF &screen, double slideDuration)
    : size(screen)
    , slideSeconds(duration(slideDuration, 5))
    , slideEnded(true)
{
}

QString SmilComposer::add(SmilRef::Type type, const QString &name, double seconds)
{
    const int rooms = roomsOf(type);
    if (!rooms) {
        return QString();
    }
    if (slideEnded || (rooms & roomsOf(slides.last()))) {
        slides.append(SmilNode());
        slideEnded = false;
    }
    SmilRef ref(type);
    ref.src = newName(plainName(name), names);
    ref.region = regionOf(rooms);
    SmilNode &slide = slides.last();
    slide.refs.append(ref);
    slide.dur.value = std::max(slide.dur.value, duration(seconds, type == SmilRef::Audio ? 0 : slideSeconds));
    return ref.src;
}

void SmilComposer::nextSlide()
{
    slideEnded = true;
}

SmilDocument SmilComposer::message() const
{
    SmilDocument message;
    QList<SmilNode> &nodes = message.body.root.children;
    nodes = slides;
    int rooms = 0;
    for (SmilNode &slide : nodes) {
        rooms |= roomsOf(slide);
        slide.dur = rounded(slide.dur.value > 0 ? slide.dur.value : slideSeconds, SmilUnit::Sec);
    }
    SmilLayout &layout = message.header.layout;
    layout.rootLayoutWidth = layout.topLayoutWidth = side(size.width());
    layout.rootLayoutHeight = layout.topLayoutHeight = side(size.height());
    layout.regions = regionsOf(rooms);
    return message;
}
