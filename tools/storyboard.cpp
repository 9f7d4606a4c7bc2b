// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "geometry.h"
#include "text.h"

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QXmlStreamWriter>

// In units of the picture; a page is some 800 of them wide.
static const double frameWidth = 184;
static const double frameHeight = 220;
static const double margin = 16;
static const int columns = 4;
static const double lineHeight = 15;
static const int mostLines = 6; // below a frame

static const char style[] = R"(
svg { color: #1c2330; font: 11px sans-serif; }
text { fill: currentColor; }
.page { fill: #fff; }
.screen { fill: #eef1f5; stroke: #8a94a3; }
.region { stroke: #345; stroke-width: 0.75; }
.r0 { fill: #9ecae9; } .r1 { fill: #ffd08a; } .r2 { fill: #a8dba0; } .r3 { fill: #e2b3dd; } .r4 { fill: #f3b0a6; }
.region { fill-opacity: 0.8; }
.number { font-weight: bold; font-size: 13px; }
@media (prefers-color-scheme: dark) {
  svg { color: #e6eaf0; }
  .page { fill: #171b22; }
  .screen { fill: #262c36; stroke: #76808f; }
  .region { stroke: #c8d2de; }
  .r0 { fill: #22577a; } .r1 { fill: #7a5412; } .r2 { fill: #2c6327; } .r3 { fill: #6b3b66; } .r4 { fill: #83392e; }
}
)";

/** The name of what plays, with a sign for its kind. */
static QString describe(const SmilRef &ref)
{
    static const char16_t signs[] = {u'\u00b6', u'\u25a3', u'\u266a', u'\u25b6', u'\u25c6'};
    return QString(QChar(signs[ref.type])) + QLatin1Char(' ')
        + (ref.src.isEmpty() ? QStringLiteral("?") : printable(ref.src.left(80)));
}

/** Adds to @p text what follows what in the node: "(a + b)" at once, "a → b" one after another. */
static void describeOrder(const SmilNode &node, QString &text)
{
    const QString separator = node.type == SmilNode::Seq ? QStringLiteral(" \u2192 ") : QStringLiteral(" + ");
    const auto begin = text.size();
    const int enough = 300;
    for (const SmilNode &child : node.children) {
        if (text.size() > enough) {
            return;
        }
        text += text.size() == begin ? QString() : separator;
        text += QLatin1Char('(');
        describeOrder(child, text);
        text += QLatin1Char(')');
    }
    for (const SmilRef &ref : node.refs) {
        if (text.size() > enough) {
            return;
        }
        text += (text.size() == begin ? QString() : separator) + describe(ref);
    }
}

namespace
{
/** What plays in one frame, by where. */
struct Frame {
    QMap<int, QStringList> inRegions; ///< by the region's index
    QStringList below; ///< what has no place on the screen, and what follows what
};

class Board
{
public:
    Board(const Message &message, QIODevice &device)
        : layout(message.document.header.layout)
        , nodes(message.document.body.root.children)
        , root(rootSize(layout))
        , scale(qMin(frameWidth / root.width(), frameHeight / root.height()))
        , writer(&device)
    {
        for (int i = 0; i < layout.regions.size(); ++i) {
            const QString &id = layout.regions.at(i).id;
            if (!indexes.contains(id)) {
                indexes.insert(id, i);
            }
        }
        for (const SmilNode &node : nodes) {
            frames.append(frameOf(node));
            lines = qMax(lines, qMin(mostLines, int(frames.last().below.size())));
        }
        writer.setAutoFormatting(true);
        writer.setAutoFormattingIndent(1);
    }

    void draw(const QString &file)
    {
        const double cellHeight = root.height() * scale + (lines + 2) * lineHeight + margin;
        const auto rows = (nodes.size() + columns - 1) / columns;
        const double width = margin + qMin<double>(columns, qMax<double>(1, nodes.size())) * (frameWidth + margin);
        const double height = margin + qMax<double>(1, rows) * cellHeight;
        writer.writeStartDocument();
        writer.writeStartElement(QStringLiteral("svg"));
        writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
        attribute("width", width);
        attribute("height", height);
        writer.writeAttribute(QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(width).arg(height));
        writer.writeAttribute(QStringLiteral("role"), QStringLiteral("img"));
        writer.writeAttribute(QStringLiteral("aria-labelledby"), QStringLiteral("title desc"));
        writeNamed("title", QStringLiteral("Storyboard of %1").arg(printable(file)));
        writeNamed("desc", summary());
        writer.writeTextElement(QStringLiteral("style"), QLatin1String(style));
        rectangle(QRectF(0, 0, width, height), QStringLiteral("page"));
        if (nodes.isEmpty()) {
            text(margin, 2 * lineHeight, QStringLiteral("Nothing plays."));
        }
        for (int i = 0; i < nodes.size(); ++i) {
            drawFrame(i, QPointF(margin + i % columns * (frameWidth + margin), margin + i / columns * cellHeight));
        }
        writer.writeEndElement();
        writer.writeEndDocument();
    }

private:
    static QString duration(const SmilNode &node)
    {
        return node.dur.valid ? node.dur.toString() : QStringLiteral("not stated");
    }

    QString summary() const
    {
        QStringList all;
        for (int i = 0; i < nodes.size(); ++i) {
            QString order;
            describeOrder(nodes.at(i), order);
            all.append(QStringLiteral("%1 (%2): %3").arg(i + 1).arg(duration(nodes.at(i)), order));
        }
        return all.isEmpty() ? QStringLiteral("Nothing plays.") : all.join(QLatin1String("; "));
    }

    void gather(const SmilNode &node, Frame &frame) const
    {
        for (const SmilNode &child : node.children) {
            gather(child, frame);
        }
        for (const SmilRef &ref : node.refs) {
            const int region = ref.type == SmilRef::Audio ? -1 : indexes.value(ref.region, -1);
            if (region >= 0 && !place(layout.regions.at(region), root).isEmpty()) {
                frame.inRegions[region].append(describe(ref));
            } else {
                frame.below.append(describe(ref));
            }
        }
    }

    Frame frameOf(const SmilNode &node) const
    {
        Frame frame;
        gather(node, frame);
        if (!node.children.isEmpty() || node.type == SmilNode::Seq) {
            QString order;
            describeOrder(node, order);
            frame.below.append(wrapped(order));
        } else if (node.refs.isEmpty()) {
            frame.below.append(QStringLiteral("nothing plays"));
        }
        return frame;
    }

    void drawFrame(int index, const QPointF &corner)
    {
        const Frame &frame = frames.at(index);
        writer.writeStartElement(QStringLiteral("g"));
        writer.writeAttribute(QStringLiteral("transform"),
                              QStringLiteral("translate(%1 %2)").arg(corner.x()).arg(corner.y()));
        rectangle(QRectF(QPointF(), root * scale), QStringLiteral("screen"));
        for (auto region = frame.inRegions.cbegin(); region != frame.inRegions.cend(); ++region) {
            drawRegion(region.key(), region.value());
        }
        const double below = root.height() * scale;
        startClip(QRectF(0, below, frameWidth, (lines + 1.5) * lineHeight));
        writer.writeStartElement(QStringLiteral("text"));
        writer.writeAttribute(QStringLiteral("y"), QString::number(1.2 * lineHeight));
        writer.writeAttribute(QStringLiteral("class"), QStringLiteral("number"));
        writer.writeCharacters(QStringLiteral("%1 \u00b7 %2").arg(index + 1).arg(duration(nodes.at(index))));
        writer.writeEndElement();
        writeLines(frame.below, lines, 2.3 * lineHeight, 0);
        writer.writeEndElement();
        writer.writeEndElement();
    }

    void drawRegion(int index, const QStringList &media)
    {
        const QRectF full = place(layout.regions.at(index), root);
        const QRectF area(full.topLeft() * scale, full.size() * scale);
        rectangle(area, QStringLiteral("region r%1").arg(index % 5));
        startClip(area);
        writeLines(media, int(area.height() / lineHeight), lineHeight, 4);
        writer.writeEndElement();
    }

    /** Everything up to the end of the element that this starts is cut off at the edges of @p area. */
    void startClip(const QRectF &area)
    {
        writer.writeStartElement(QStringLiteral("svg"));
        attribute("x", area.x());
        attribute("y", area.y());
        attribute("width", area.width());
        attribute("height", area.height());
    }

    void writeLines(const QStringList &all, int most, double y, double x)
    {
        const auto shown = all.size() > most ? most - 1 : all.size();
        for (int i = 0; i < shown; ++i) {
            text(x, y + i * lineHeight, all.at(i));
        }
        if (shown < all.size() && shown >= 0) {
            text(x, y + shown * lineHeight, QStringLiteral("\u2026 %1 more").arg(all.size() - shown));
        }
    }

    /** Lines of about the width of a frame. */
    static QStringList wrapped(const QString &words)
    {
        const int width = 34;
        QStringList result(QString{});
        const QStringList all = words.split(QLatin1Char(' '));
        for (const QString &word : all) {
            if (!result.last().isEmpty() && result.last().size() + word.size() >= width) {
                result.append(QString());
            }
            result.last() += (result.last().isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
        return result;
    }

    void rectangle(const QRectF &area, const QString &kind)
    {
        writer.writeEmptyElement(QStringLiteral("rect"));
        attribute("x", area.x());
        attribute("y", area.y());
        attribute("width", area.width());
        attribute("height", area.height());
        writer.writeAttribute(QStringLiteral("class"), kind);
    }

    void text(double x, double y, const QString &line)
    {
        writer.writeStartElement(QStringLiteral("text"));
        attribute("x", x);
        attribute("y", y);
        writer.writeCharacters(line);
        writer.writeEndElement();
    }

    void writeNamed(const char *name, const QString &content)
    {
        writer.writeStartElement(QLatin1String(name));
        writer.writeAttribute(QStringLiteral("id"), QLatin1String(name));
        writer.writeCharacters(content);
        writer.writeEndElement();
    }

    void attribute(const char *name, double value)
    {
        writer.writeAttribute(QLatin1String(name), QString::number(value));
    }

    const SmilLayout &layout;
    const QList<SmilNode> &nodes;
    const QSizeF root;
    const double scale;
    QHash<QString, int> indexes; ///< of the regions, by id
    QList<Frame> frames;
    int lines = 0;
    QXmlStreamWriter writer;
};
}

void storyboard(const Message &message, QIODevice &out)
{
    Board(message, out).draw(message.file);
}
