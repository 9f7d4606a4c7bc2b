// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "captions.h"
#include "bounds.h"
#include "escaping.h"
#include "typesetting.h"

#include <algorithm>

static const double narrowest = 80; // that enough of a long name still fits into
static const int mostLines = 6; // below a frame

/** The name, cut to leave room for what is said of it, on a line below the frame. */
static QString lineBelow(const QString &name, const QString &remark = QString())
{
    return elided(name, frameWidth - width(remark)) + remark;
}

static bool isDrawn(PartKind kind)
{
    return kind == PartKind::Picture || kind == PartKind::Text || kind == PartKind::Xml;
}

Captions::Place Captions::find(const SmilRef &ref)
{
    const int region = screen.indexes.value(ref.region, -1);
    const QString id = quoted(elided(shortened(ref.region, bounds::quotation), frameWidth / 3));
    const int part = parts.find(ref.src);
    const QString missing = parts.areKnown() && part < 0 ? QStringLiteral(", missing") : QString();
    if (ref.type == SmilRef::Audio || ref.region.isEmpty()) {
        return {-1, lineBelow(nameOf(ref), missing)};
    }
    if (region < 0) {
        return {-1, lineBelow(nameOf(ref), missing + QLatin1String(", no region ") + id)};
    }
    if (screen.areas.at(region).isEmpty()) {
        return {-1, lineBelow(nameOf(ref), missing + QLatin1String(", off screen in ") + id)};
    }
    const bool drawn = part >= 0 && isDrawn(parts.read(part).content.kind);
    return {region, nameOf(ref), drawn ? part : -1, !missing.isEmpty()};
}

const Captions::Place &Captions::placeOf(const SmilRef *ref)
{
    const auto found = places.constFind(ref);
    return found != places.constEnd() ? *found : *places.insert(ref, find(*ref));
}

/** The first line of the region, from @p from on, that no other label takes; -1 when there is none. */
static int freeLine(const QRectF &region, const QList<Label> &labels, int from, double length)
{
    for (int line = from; (line + 1) * lineHeight <= region.height(); ++line) {
        const QRectF area(region.x(), region.y() + line * lineHeight, length, lineHeight);
        const auto taken = [&area](const Label &label) { return label.area.intersects(area); };
        if (std::none_of(labels.cbegin(), labels.cend(), taken)) {
            return line;
        }
    }
    return -1;
}

/** Writes the id and the names into the region where they fit. What does not is listed below the frame. */
static void label(const QRectF &region, const QString &id, const Shown &shown, Picture &picture)
{
    const QStringList &names = shown.names;
    const bool isFree = shown.drawn.isEmpty();
    const bool withId = isFree && !id.isEmpty() && (names.size() + 1) * lineHeight <= region.height();
    const QStringList lines = withId ? QStringList(id) + names : names;
    int next = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const bool isId = withId && i == 0;
        const QString text = region.width() < narrowest ? lines.at(i) : elided(lines.at(i), region.width() - 8);
        const double length = width(text) + 8;
        const bool fits = isFree && length <= region.width() && next >= 0;
        const int line = fits ? freeLine(region, picture.labels, next, length) : -1;
        if (line >= 0) {
            const QRectF area(region.x(), region.y() + line * lineHeight, length, lineHeight);
            picture.labels.append({area, region.width(), text, isId});
            next = line + 1;
        } else if (!isId) {
            picture.below.append(lineBelow(lines.at(i), id.isEmpty() ? id : QLatin1String(" in ") + id));
            next = -1; // names stay in order
        }
    }
}

Picture Captions::of(const Frame &frame)
{
    Picture picture;
    for (const SmilRef *const ref : frame.media) {
        const Place &place = placeOf(ref);
        if (place.region < 0) {
            picture.below.append(place.name);
        } else if (place.part >= 0) {
            picture.inRegions[place.region].drawn.append({place.part, place.name});
        } else {
            picture.inRegions[place.region].names.append(place.name);
            picture.inRegions[place.region].missing |= place.missing;
        }
    }
    for (auto region = picture.inRegions.cbegin(); region != picture.inRegions.cend(); ++region) {
        label(screen.areas.at(region.key()), screen.ids.at(region.key()), region.value(), picture);
    }
    if (frame.nested) {
        picture.below += wrapped(frame.order, frameWidth, mostLines);
    } else if (frame.media.isEmpty()) {
        picture.below.append(QStringLiteral("nothing plays"));
    }
    if (picture.below.size() > mostLines) {
        const auto more = picture.below.size() - mostLines + 1;
        picture.below = picture.below.mid(0, mostLines - 1) << QStringLiteral("\u2026 %1 more").arg(more);
    }
    return picture;
}
