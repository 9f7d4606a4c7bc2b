// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "commands/commands.h"
#include "drawing/frame.h"
#include "output/outputfile.h"

#include <algorithm>

// In units of the picture.
static const double margin = 16;
static const int columns = 4;

static const char styleSheet[] = R"(
svg { color: #1c2330; font: 11px sans-serif; }
text { fill: currentColor; }
.page { fill: #fff; }
.screen { fill: #eef1f5; stroke: #8a94a3; }
.region { stroke: #345; stroke-width: 0.75; fill: none; }
.r0 { fill: #9ecae9; } .r1 { fill: #ffd08a; } .r2 { fill: #a8dba0; } .r3 { fill: #e2b3dd; } .r4 { fill: #f3b0a6; }
.region { fill-opacity: 0.8; }
.number { font-weight: bold; font-size: 13px; }
.id { font-style: italic; }
.rtl { direction: rtl; }
.missing { stroke-width: 1.5; stroke-dasharray: 6 4; }
@media (prefers-color-scheme: dark) {
  svg { color: #e6eaf0; }
  .page { fill: #171b22; }
  .screen { fill: #262c36; stroke: #76808f; }
  .region { stroke: #c8d2de; }
  .r0 { fill: #22577a; } .r1 { fill: #7a5412; } .r2 { fill: #2c6327; } .r3 { fill: #6b3b66; } .r4 { fill: #83392e; }
}
)";

static void draw(Svg &svg, Media &media, const Picture &picture, const ScaledScreen &screen)
{
    svg.rectangle(QRectF(QPointF(), screen.size), QStringLiteral("screen"));
    for (const Shown &shown : picture.shown) {
        const QString colour = shown.region < 0 ? QString() : QStringLiteral(" r%1").arg(shown.region % 5);
        svg.rectangle(shown.area, QLatin1String("region") + colour + QLatin1String(shown.missing ? " missing" : ""));
        if (shown.part >= 0) {
            media.draw(shown);
        }
    }
    // After all of these, so that none hides a name in another.
    for (const Label &label : picture.labels) {
        svg.beginClip(QRectF(label.area.topLeft(), QSizeF(label.room, lineHeight)));
        svg.text(QPointF(4, 0.75 * lineHeight), label.text, label.region < 0 ? QString() : QStringLiteral("id"));
        svg.endGroup();
    }
    const double lines = picture.below.size() + 1.5;
    svg.beginClip(QRectF(0, screen.size.height(), frameWidth + margin / 2, lines * lineHeight));
    svg.text(QPointF(0, 1.2 * lineHeight), picture.heading, QStringLiteral("number"));
    for (int i = 0; i < picture.below.size(); ++i) {
        svg.text(QPointF(0, (2.3 + i) * lineHeight), picture.below.at(i));
    }
    svg.endGroup();
}

void storyboard(Message &message, QIODevice &out)
{
    const SmilSlideshow show = message.slideshow();
    const ScaledScreen screen(show.layout());
    QList<Picture> pictures;
    QStringList words;
    double lines = 0;
    const QList<SmilSlide> slides = firstSlides(show);
    for (const SmilSlide &slide : slides) {
        Picture picture = pictureOf(int(pictures.size()) + 1, slide, screen, message.parts);
        if (slide.parts.size() > slide.cues.size()) {
            picture.below.append(QStringLiteral("and %1 more").arg(slide.parts.size() - slide.cues.size()));
        }
        lines = qMax<double>(lines, picture.below.size());
        words.append(picture.heading + QLatin1String(": ")
                     + shortened(picture.words.join(QLatin1String(" + ")), bounds::description));
        pictures.append(picture);
    }
    const double cellWidth = frameWidth + margin;
    const double cellHeight = screen.size.height() + (lines + 2) * lineHeight + margin;
    const auto count = qMax<qsizetype>(1, pictures.size());
    const auto rows = (count + columns - 1) / columns;
    const QSizeF page(margin + qMin<double>(columns, count) * cellWidth, margin + rows * cellHeight);
    const QString duration = pictures.isEmpty() ? QStringLiteral("Nothing plays.")
                                                : QStringLiteral("Plays %1.").arg(lengthText(show.duration()));
    const QString more = show.count() > pictures.size()
        ? QStringLiteral(" Only %1 of %2 slides are drawn.").arg(pictures.size()).arg(show.count())
        : QString();

    Svg svg(out, page, QStringLiteral("Storyboard of %1").arg(printable(message.file)),
            (duration + QLatin1Char(' ') + words.join(QLatin1String("; "))).trimmed(), styleSheet);
    svg.rectangle(QRectF(QPointF(), page), QStringLiteral("page"));
    Media media{svg, screen.scale, message.parts};
    for (int i = 0; i < pictures.size(); ++i) {
        svg.beginGroup(QPointF(margin + i % columns * cellWidth, margin + i / columns * cellHeight));
        draw(svg, media, pictures.at(i), screen);
        svg.endGroup();
    }
    svg.text(QPointF(margin, page.height() - 4), duration + more);
}

/** Why the picture cannot be written there: it would take the place of the message or of a part that it refers to. */
static QString problemWith(const QString &output, const QString &folder, const Message &message)
{
    if (isSameFile(message.file, output)) {
        return QStringLiteral("is the message itself");
    }
    const int part = message.parts.find(nameIn(folder, output));
    const QList<SmilCue> cues = SmilTimeline(message.dom.documentElement()).cues();
    const bool isPart = part >= 0 && std::any_of(cues.cbegin(), cues.cend(), [&](const SmilCue &cue) {
                            return message.parts.find(cue.ref.src) == part;
                        });
    return isPart ? QStringLiteral("is a part of the message") : QString();
}

static Result runStoryboard(const QString &file, const Arguments &arguments, QIODevice &out)
{
    return withMessage(file, arguments, [&](Message &message) {
        const QString &output = arguments.output;
        const QString problem = output.isNull() ? output : problemWith(output, arguments.parts, message);
        if (!problem.isEmpty()) {
            return failure(output, problem);
        }
        storyboard(message, out);
        return Result();
    });
}

const Command storyboardCommand = {"storyboard",
                                   "FILE",
                                   "output parts",
                                   "Draws a message as a picture, in SVG.",
                                   "smiltool storyboard message.smil -o board.svg",
                                   runStoryboard};
