// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "charset.h"
#include "commands.h"
#include "frames.h"
#include "geometry.h"
#include "svg.h"
#include "text.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <algorithm>

// In units of the picture; a page is some 800 of them wide.
static const double frameWidth = 184;
static const double frameHeight = 220;
static const double margin = 16;
static const int columns = 4;
static const double lineHeight = 15;
static const double narrowest = 80; // that enough of a long name still fits into
static const int mostLines = 6; // below a frame
static const int mostPictureBytes = 32 * 1024 * 1024; // in one storyboard
static const int mostDrawn = 1000; // parts of which it shows more than the name

static const char styleSheet[] = R"(
svg { color: #1c2330; font: 11px sans-serif; }
text { fill: currentColor; }
.page { fill: #fff; }
.screen { fill: #eef1f5; stroke: #8a94a3; }
.region { stroke: #345; stroke-width: 0.75; }
.r0 { fill: #9ecae9; } .r1 { fill: #ffd08a; } .r2 { fill: #a8dba0; } .r3 { fill: #e2b3dd; } .r4 { fill: #f3b0a6; }
.region { fill-opacity: 0.8; }
.number { font-weight: bold; font-size: 13px; }
.id { font-style: italic; }
.rtl { direction: rtl; }
.cross { stroke: currentColor; stroke-width: 0.75; fill: none; }
@media (prefers-color-scheme: dark) {
  svg { color: #e6eaf0; }
  .page { fill: #171b22; }
  .screen { fill: #262c36; stroke: #76808f; }
  .region { stroke: #c8d2de; }
  .r0 { fill: #22577a; } .r1 { fill: #7a5412; } .r2 { fill: #2c6327; } .r3 { fill: #6b3b66; } .r4 { fill: #83392e; }
}
)";

namespace
{
struct Label {
    QRectF area; ///< that it takes, about
    double room; ///< to the edge of its region
    QString text;
    bool isId;
};

struct Drawn {
    int part;
    QString name;
};

/** What plays in one region. */
struct Content {
    QList<Drawn> drawn; ///< whose parts are drawn
    QStringList names; ///< of all others
    bool missing = false; ///< whether one of these has no part
};

/** What is drawn for one frame. */
struct Picture {
    QMap<int, Content> inRegions; ///< by the region's index
    QList<Label> labels;
    QStringList below; ///< what has no place on the screen, and what follows what
};

/** Where things are drawn: the regions of a layout, in units of the picture. */
class Screen
{
public:
    explicit Screen(const SmilLayout &layout)
    {
        const QSizeF root = rootSize(layout);
        scale = qMin(frameWidth / root.width(), frameHeight / root.height());
        size = root * scale;
        for (const SmilRegion &region : layout.regions) {
            const QRectF whole = areaOf(region, root);
            if (!indexes.contains(region.id)) {
                indexes.insert(region.id, int(areas.size()));
            }
            ids.append(elided(printable(shortened(region.id, 40)), frameWidth / 2));
            areas.append(QRectF(whole.topLeft() * scale, whole.size() * scale));
            fits.append(region.fit);
        }
    }

    double scale;
    QSizeF size;
    QHash<QString, int> indexes; ///< of the first region with each id
    QStringList ids;
    QList<QRectF> areas;
    QStringList fits;
};
}

/** The name, cut to leave room for what is said of it, on a line below the frame. */
static QString lineBelow(const QString &name, const QString &remark = QString())
{
    return elided(name, frameWidth - width(remark)) + remark;
}

static bool isDrawn(Parts::Kind kind)
{
    return kind == Parts::Picture || kind == Parts::Text || kind == Parts::Xml;
}

namespace
{
/** Where what plays is shown, and how. */
struct Place {
    int region = -1; ///< -1: below the frame
    QString name;
    int part = -1; ///< that is drawn
    bool missing = false;
};

/** Each is looked for once, however many frames show it: both its name and the names of parts may be long. */
class Places
{
public:
    Places(const Screen &layout, Message &of)
        : screen(layout)
        , message(of)
    {
    }

    const Place &of(const SmilRef *ref)
    {
        const auto found = known.constFind(ref);
        return found != known.constEnd() ? *found : *known.insert(ref, find(*ref));
    }

private:
    Place find(const SmilRef &ref)
    {
        const int region = screen.indexes.value(ref.region, -1);
        const QString id = quoted(elided(shortened(ref.region, 40), frameWidth / 3));
        const int part = message.parts.find(ref.src);
        const QString missing = message.hasParts && part < 0 ? QStringLiteral(", missing") : QString();
        if (ref.type == SmilRef::Audio || ref.region.isEmpty()) {
            return {-1, lineBelow(nameOf(ref), missing)};
        }
        if (region < 0) {
            return {-1, lineBelow(nameOf(ref), missing + QLatin1String(", no region ") + id)};
        }
        if (screen.areas.at(region).isEmpty()) {
            return {-1, lineBelow(nameOf(ref), missing + QLatin1String(", off screen in ") + id)};
        }
        const bool drawn = part >= 0 && isDrawn(message.parts.read(part).kind);
        return {region, nameOf(ref), drawn ? part : -1, !missing.isEmpty()};
    }

    const Screen &screen;
    Message &message;
    QHash<const SmilRef *, Place> known;
};
}

static void sort(const Place &place, Picture &picture)
{
    if (place.region < 0) {
        picture.below.append(place.name);
    } else if (place.part >= 0) {
        picture.inRegions[place.region].drawn.append({place.part, place.name});
    } else {
        picture.inRegions[place.region].names.append(place.name);
        picture.inRegions[place.region].missing |= place.missing;
    }
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
static void label(const QRectF &region, const QString &id, const Content &content, Picture &picture)
{
    const QStringList &names = content.names;
    const bool isFree = content.drawn.isEmpty();
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

static Picture pictureOf(const Frame &frame, const Screen &screen, Places &places)
{
    Picture picture;
    for (const SmilRef *const ref : frame.media) {
        sort(places.of(ref), picture);
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

/** Up to that many bytes, and no broken character at the end: what is not all UTF-8 would be taken for Latin-1. */
static QByteArray beginning(const QByteArray &text, int most)
{
    auto size = qMin<qsizetype>(text.size(), most);
    while (size > 0 && size < text.size() && (uchar(text.at(size)) & 0xc0) == 0x80) {
        --size;
    }
    return text.left(size);
}

/** The text without what only says how to set it: tabs, marks of direction, soft hyphens; joiners stay. */
static QString withoutFormat(QString text)
{
    static const QRegularExpression format(QStringLiteral("(?![\\x{200c}\\x{200d}])\\p{Cf}"));
    return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).remove(format);
}

namespace
{
/** Draws the parts, each only once in a region: where other frames show it again, they refer to the first. */
class Contents
{
public:
    Contents(Svg &picture, const Screen &layout, Message &of)
        : svg(picture)
        , screen(layout)
        , message(of)
    {
    }

    void draw(const Content &content, int region)
    {
        for (const Drawn &each : content.drawn) {
            const QString id = QStringLiteral("p%1-%2").arg(each.part).arg(region);
            if (drawn.contains(id)) {
                svg.reuse(id);
            } else {
                drawn.insert(id);
                draw(message.parts.read(each.part), region, each.name, id);
            }
        }
        if (content.missing && content.drawn.isEmpty()) {
            svg.cross(screen.areas.at(region));
        }
    }

private:
    void draw(const Parts::Part &part, int region, const QString &name, const QString &id)
    {
        svg.beginClip(screen.areas.at(region), id);
        svg.title(name + QLatin1String(" in ") + screen.ids.at(region));
        const bool isPicture = part.kind == Parts::Picture;
        if (drawn.size() > mostDrawn || (isPicture && part.data.size() > left)) {
            svg.text(QPointF(4, 0.75 * lineHeight), name);
        } else if (isPicture) {
            drawPicture(part, region);
        } else {
            drawText(part, screen.areas.at(region).size());
        }
        svg.endGroup();
    }

    void drawPicture(const Parts::Part &part, int region)
    {
        const QString &fit = screen.fits.at(region);
        const char *const aspectRatio = fit == QLatin1String("meet") ? "xMinYMin meet"
            : fit == QLatin1String("slice")                          ? "xMinYMin slice"
            : fit == QLatin1String("fill")                           ? "none"
                                                                     : nullptr;
        svg.image(part.type, part.data, screen.areas.at(region).size(), aspectRatio, screen.scale);
        left -= part.data.size();
    }

    void drawText(const Parts::Part &part, const QSizeF &size)
    {
        const int count = qMax(1, int(size.height() / lineHeight));
        const int enough = count * (int(size.width() / narrowestLetter) + 2);
        const QString text = withoutFormat(decoded(beginning(part.data, 4 * enough)).left(enough));
        const QStringList paragraphs = text.split(QRegularExpression(QStringLiteral("\\R")));
        QStringList printed;
        for (const QString &paragraph : paragraphs) {
            printed.append(printable(paragraph));
        }
        const QStringList lines = wrapped(printed.join(QLatin1Char('\n')), size.width() - 8, count);
        for (int i = 0; i < lines.size(); ++i) {
            const bool rightToLeft = lines.at(i).isRightToLeft();
            svg.text(QPointF(rightToLeft ? size.width() - 4 : 4, (i + 0.75) * lineHeight), lines.at(i),
                     rightToLeft ? "rtl" : nullptr);
        }
    }

    Svg &svg;
    const Screen &screen;
    Message &message;
    QSet<QString> drawn;
    qint64 left = mostPictureBytes;
};
}

static void draw(Svg &svg, Contents &contents, const Picture &picture, const Screen &screen, const QString &heading)
{
    svg.rectangle(QRectF(QPointF(), screen.size), QStringLiteral("screen"));
    for (auto region = picture.inRegions.cbegin(); region != picture.inRegions.cend(); ++region) {
        svg.rectangle(screen.areas.at(region.key()), QStringLiteral("region r%1").arg(region.key() % 5));
        contents.draw(region.value(), region.key());
    }
    // After all regions, so that none hides a name in another.
    for (const Label &label : picture.labels) {
        svg.beginClip(QRectF(label.area.topLeft(), QSizeF(label.room, lineHeight)));
        svg.text(QPointF(4, 0.75 * lineHeight), label.text, label.isId ? "id" : nullptr);
        svg.endGroup();
    }
    const double lines = picture.below.size() + 1.5;
    svg.beginClip(QRectF(0, screen.size.height(), frameWidth + margin / 2, lines * lineHeight));
    svg.text(QPointF(0, 1.2 * lineHeight), heading, "number");
    for (int i = 0; i < picture.below.size(); ++i) {
        svg.text(QPointF(0, (2.3 + i) * lineHeight), picture.below.at(i));
    }
    svg.endGroup();
}

static QString summary(const QList<Frame> &frames)
{
    QStringList all;
    for (const Frame &frame : frames) {
        all.append(QStringLiteral("%1 (%2): %3").arg(all.size() + 1).arg(frame.dur, frame.order));
    }
    return all.isEmpty() ? QStringLiteral("Nothing plays.") : all.join(QLatin1String("; "));
}

bool storyboard(Message &message, QIODevice &out)
{
    const Screen screen(message.document.header.layout);
    const QList<Frame> frames = framesOf(message.document.body.root);
    Places places(screen, message);
    QList<Picture> pictures;
    double lines = 0;
    for (const Frame &frame : frames) {
        pictures.append(pictureOf(frame, screen, places));
        lines = qMax<double>(lines, pictures.last().below.size());
    }
    const double cellWidth = frameWidth + margin;
    const double cellHeight = screen.size.height() + (lines + 2) * lineHeight + margin;
    const auto count = qMax<qsizetype>(1, frames.size());
    const auto rows = (count + columns - 1) / columns;
    const QSizeF page(margin + qMin<double>(columns, count) * cellWidth, margin + rows * cellHeight);

    Svg svg(out);
    svg.begin(page, QStringLiteral("Storyboard of %1").arg(printable(message.file)), summary(frames), styleSheet);
    svg.rectangle(QRectF(QPointF(), page), QStringLiteral("page"));
    if (frames.isEmpty()) {
        svg.text(QPointF(margin, 2 * lineHeight), QStringLiteral("Nothing plays."));
    }
    Contents contents(svg, screen, message);
    for (int i = 0; i < frames.size(); ++i) {
        svg.beginGroup(QPointF(margin + i % columns * cellWidth, margin + i / columns * cellHeight));
        draw(svg, contents, pictures.at(i), screen, QStringLiteral("%1 \u00b7 %2").arg(i + 1).arg(frames.at(i).dur));
        svg.endGroup();
    }
    if (frames.size() == mostFrames) {
        svg.text(QPointF(margin, page.height() - 4), QStringLiteral("No more than %1 are drawn.").arg(mostFrames));
    }
    return svg.end();
}
