// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "drawing/frame.h"

#include <algorithm>

static const double narrowest = 80; // that enough of a long name still fits into
static const int mostLines = 6; // below a frame

/** The screen of the message, or one as large as a phone's where that cannot be drawn. */
static SmilScreen screenOf(SmilLayout layout)
{
    const SmilScreen screen(layout);
    const QSizeF size = screen.size();
    if (qMin(size.width(), size.height()) >= 1 && qMax(size.width(), size.height()) <= bounds::screen) {
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

/** A line with a sign for the kind of the medium. */
static QString withSign(const SmilRef &ref, const QString &text)
{
    static const char16_t signs[] = {u'\u00b6', u'\u25a3', u'\u266a', u'\u25b6', u'\u25c6'}; // by SmilRef::Type
    // The end of a long name has its extension.
    const bool isLong = text.size() > bounds::name;
    return QChar(signs[ref.type]) + QLatin1Char(' ')
        + printable(isLong ? shortened(text, bounds::name - 10) + text.right(10) : text);
}

/** The name, cut to leave room for what is said of it, on a line below the frame. */
static QString lineBelow(const QString &name, const QString &remark)
{
    return elided(name, frameWidth - width(remark)) + remark;
}

bool isPicture(const QString &type)
{
    static const QStringList types{QStringLiteral("image/png"), QStringLiteral("image/jpeg"),
                                   QStringLiteral("image/gif"), QStringLiteral("image/webp")};
    return types.contains(type);
}

/** Writes the line into the area where no other label is. Returns whether it fits. */
static bool addLabel(const QRectF &area, const QString &line, int region, QList<Label> &labels)
{
    const QString text = area.width() < narrowest ? line : elided(line, area.width() - 8);
    QRectF place(area.x(), area.y(), width(text) + 8, lineHeight);
    const auto isThere = [&place](const Label &label) { return label.area.intersects(place); };
    while (std::any_of(labels.cbegin(), labels.cend(), isThere)) {
        place.translate(0, lineHeight);
    }
    const bool fits = place.width() <= area.width() && place.bottom() <= area.bottom();
    if (fits) {
        labels.append({place, area.width(), text, region});
    }
    return fits;
}

/** Writes the id of the region, once, and the name into the area. A name that does not fit is listed below. */
static void label(const Shown &shown, const QString &id, Picture &picture)
{
    QList<Label> &labels = picture.labels;
    const auto isNamed = [&shown](const Label &label) { return label.region == shown.region; };
    const bool hasRoom = 2 * lineHeight <= shown.area.height();
    if (!id.isEmpty() && hasRoom && std::none_of(labels.cbegin(), labels.cend(), isNamed)) {
        addLabel(shown.area, id, shown.region, labels);
    }
    if (!addLabel(shown.area, shown.name, -1, labels)) {
        picture.below.append(lineBelow(shown.name, id.isEmpty() ? id : QLatin1String(" in ") + id));
    }
}

static void add(const SmilCue &cue, int part, const QRectF &place, const ScaledScreen &screen, MessageParts &parts,
                Picture &picture)
{
    const int region = screen.pixels.regionIndex(cue.ref.region);
    const QString id =
        region < 0 ? QString() : elided(printable(shortened(cue.ref.region, bounds::quotation)), frameWidth / 2);
    // What no element refers to is called as the message calls it, not by its identifier.
    const QString src = cue.line < 0 && part >= 0 ? parts.at(part).name : cue.ref.src;
    const QString name = withSign(cue.ref, src.isEmpty() ? QStringLiteral("?") : src);
    const QString words = cue.alt.isEmpty() ? name : withSign(cue.ref, cue.alt);
    const bool isMissing = parts.areKnown() && part < 0;
    const QString remark = isMissing ? QStringLiteral(", missing") : QString();
    const QRectF area = screen.visible(place);
    picture.words.append(words);
    if (cue.ref.type == SmilRef::Audio) {
        picture.below.append(lineBelow(name, remark));
    } else if (area.isEmpty()) {
        picture.below.append(lineBelow(name, remark + QLatin1String(", off screen in ") + quoted(id)));
    } else {
        const QString type = part < 0 ? QString() : parts.read(part).type;
        const bool drawn = isPicture(type) || type == QLatin1String("text/plain");
        picture.shown.append({place, area, cue.fit, region, name + remark,
                              words + (id.isEmpty() ? id : QLatin1String(" in ") + id), drawn ? part : -1, isMissing});
        if (!drawn) {
            label(picture.shown.last(), id, picture);
        }
    }
}

Picture pictureOf(int number, const SmilSlide &slide, const ScaledScreen &screen, MessageParts &parts)
{
    Picture picture;
    picture.heading = QStringLiteral("%1 \u00b7 %2 \u00b7 %3")
                          .arg(number)
                          .arg(clockText(slide.begin), lengthText(slide.end - slide.begin));
    const QList<QRectF> places = screen.pixels.rects(slide.cues);
    for (int i = 0; i < slide.cues.size(); ++i) {
        add(slide.cues.at(i), slide.parts.at(i), places.at(i), screen, parts, picture);
    }
    if (picture.below.size() > mostLines) {
        const auto more = picture.below.size() - mostLines + 1;
        picture.below = picture.below.mid(0, mostLines - 1) << QStringLiteral("\u2026 %1 more").arg(more);
    }
    return picture;
}
