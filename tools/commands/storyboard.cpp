// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "bounds.h"
#include "captions.h"
#include "commands.h"
#include "escaping.h"
#include "media.h"
#include "outputfile.h"
#include "svg.h"

#include <algorithm>

// In units of the picture.
static const double margin = 16;
static const int columns = 4;

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

static void draw(Svg &svg, Media &media, const Picture &picture, const Screen &screen, const QString &heading)
{
    svg.rectangle(QRectF(QPointF(), screen.size), QStringLiteral("screen"));
    for (auto region = picture.inRegions.cbegin(); region != picture.inRegions.cend(); ++region) {
        svg.rectangle(screen.areas.at(region.key()), QStringLiteral("region r%1").arg(region.key() % 5));
        media.draw(region.value(), region.key());
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
    Captions captions(screen, message.parts);
    QList<Picture> pictures;
    double lines = 0;
    for (const Frame &frame : frames) {
        pictures.append(captions.of(frame));
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
    Media media(svg, screen, message.parts);
    for (int i = 0; i < frames.size(); ++i) {
        svg.beginGroup(QPointF(margin + i % columns * cellWidth, margin + i / columns * cellHeight));
        draw(svg, media, pictures.at(i), screen, QStringLiteral("%1 \u00b7 %2").arg(i + 1).arg(frames.at(i).dur));
        svg.endGroup();
    }
    if (frames.size() == bounds::frames) {
        svg.text(QPointF(margin, page.height() - 4), QStringLiteral("No more than %1 are drawn.").arg(bounds::frames));
    }
    return svg.end();
}

static bool refersTo(const SmilNode &node, const Parts &parts, int part)
{
    return std::any_of(node.refs.cbegin(), node.refs.cend(),
                       [&](const SmilRef &ref) { return parts.find(ref.src) == part; })
        || std::any_of(node.children.cbegin(), node.children.cend(),
                       [&](const SmilNode &child) { return refersTo(child, parts, part); });
}

/** Whether a file in the folder of the parts is one that the message refers to. */
static bool isPart(const QString &name, const QString &folder, const Message &message)
{
    const QString file = folder.isEmpty() ? QString() : nameIn(folder, name);
    const int part = file.isEmpty() ? -1 : message.parts.find(file);
    return part >= 0 && refersTo(message.document.body.root, message.parts, part);
}

/** Draws to a file, but never over the message. */
static Result drawTo(const QString &name, const QString &folder, Message &message)
{
    if (isSameFile(message.file, name)) {
        return failure(name, QStringLiteral("is the message itself"));
    }
    if (isPart(name, folder, message)) {
        return failure(name, QStringLiteral("is a part of the message"));
    }
    const QString problem = writeFile(name, [&message](QIODevice &out) { return storyboard(message, out); });
    return problem.isEmpty() ? Result() : failure(name, problem);
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    const bool toFile = !arguments.output.isNull() && arguments.output != QLatin1String("-");
    return withMessage(
        file, arguments, arguments.plain ? SmilParser::AsWritten : SmilParser::ClockDurations, [&](Message &message) {
            return toFile ? drawTo(arguments.output, arguments.parts, message) : Result{storyboard(message, out), {}};
        });
}

const Command storyboardCommand = {"storyboard",
                                   "FILE",
                                   Plain | Output | PartsFolder,
                                   "Draws a message as a picture, in SVG.",
                                   "smiltool storyboard message.smil -o board.svg",
                                   run};
