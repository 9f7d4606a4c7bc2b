// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "base/timetext.h"
#include "commands/commands.h"
#include "input/content.h"
#include "json/json.h"

#include <smilparser/smilplayback.h>

#include <QtCore/QIODevice>

namespace
{
/** The lines of an outline. */
class Outline
{
public:
    explicit Outline(QIODevice &device)
        : out(device)
    {
    }

    void line(int level, const QString &text)
    {
        out.write(QByteArray(2 * qMin(level, bounds::indentation), ' ') + text.toUtf8() + '\n');
    }

    void text(int level, QLatin1String label, const QString &value)
    {
        if (!value.isEmpty()) {
            line(level, label + QLatin1Char(' ') + quoted(value));
        }
    }

private:
    QIODevice &out;
};
}

static QString size(const SmilUnit &width, const SmilUnit &height)
{
    if (!width.valid && !height.valid) {
        return QStringLiteral("no size");
    }
    if (!width.valid) {
        return QStringLiteral("height ") + height.toString();
    }
    if (!height.valid) {
        return QStringLiteral("width ") + width.toString();
    }
    return width.toString() + QLatin1String(" x ") + height.toString();
}

static QString position(QLatin1String edge, const SmilUnit &distance)
{
    return distance.valid ? QLatin1String(", ") + edge + QLatin1Char(' ') + distance.toString() : QString();
}

static QString describe(const SmilRegion &region)
{
    QString text = QLatin1String("region ") + quoted(region.id) + QLatin1String(": ")
        + size(region.width, region.height) + position(QLatin1String("left"), region.left)
        + position(QLatin1String("top"), region.top) + position(QLatin1String("right"), region.right)
        + position(QLatin1String("bottom"), region.bottom);
    if (!region.fit.isEmpty()) {
        text += QLatin1String(", fit ") + quoted(region.fit);
    }
    return text;
}

static QString describe(const SmilRef &ref)
{
    QString text = elementName(ref.type) + QLatin1Char(' ') + quoted(ref.src);
    if (!ref.region.isEmpty()) {
        text += QLatin1String(" in ") + quoted(ref.region);
    }
    return text;
}

static void showContents(Outline &outline, int level, const SmilNode &node)
{
    for (const SmilNode &child : node.children) {
        const QString name = child.type == SmilNode::Seq ? QStringLiteral("seq, ") : QStringLiteral("par, ");
        outline.line(level, name + (child.dur.valid ? child.dur.toString() : QStringLiteral("no duration")));
        showContents(outline, level + 1, child);
    }
    for (const SmilRef &ref : node.refs) {
        outline.line(level, describe(ref));
    }
}

static void showHeader(Outline &outline, const SmilHeader &header)
{
    outline.line(1, QStringLiteral("head"));
    outline.text(2, QLatin1String("id"), header.id);
    outline.text(2, QLatin1String("title"), header.title);
    outline.text(2, QLatin1String("class"), header.className);
    for (const SmilMeta &meta : header.metas) {
        const QString id = meta.id.isEmpty() ? QString() : QLatin1String(", id ") + quoted(meta.id);
        outline.line(2, QLatin1String("meta ") + quoted(meta.name) + QLatin1String(": ") + quoted(meta.content) + id);
    }
}

static void showLayout(Outline &outline, const SmilLayout &layout)
{
    outline.line(1, QStringLiteral("layout"));
    outline.line(2, QLatin1String("root-layout: ") + size(layout.rootLayoutWidth, layout.rootLayoutHeight));
    if (layout.topLayoutWidth.valid || layout.topLayoutHeight.valid) {
        outline.line(2, QLatin1String("topLayout: ") + size(layout.topLayoutWidth, layout.topLayoutHeight));
    }
    for (const SmilRegion &region : layout.regions) {
        outline.line(2, describe(region));
    }
}

static QString header(const QString &text)
{
    return shortened(text, bounds::header);
}

static void showMessage(Outline &outline, const Message &message)
{
    const MmsMessage &mms = message.mms;
    outline.text(1, QLatin1String("from"), header(mms.from));
    for (const QString &receiver : mms.to) {
        outline.text(1, QLatin1String("to"), header(receiver));
    }
    outline.text(1, QLatin1String("subject"), header(mms.subject));
    if (mms.date.isValid()) {
        outline.line(1, QLatin1String("date ") + mms.date.toString(Qt::ISODate));
    }
    for (int i = 0; i < int(mms.parts.size()); ++i) {
        outline.line(1,
                     QStringLiteral("part %1, %2, %3 bytes")
                         .arg(quoted(header(message.parts.at(i).name)), printable(header(mms.parts.at(i).type)),
                              QString::number(mms.data.at(i).size())));
    }
}

static void showSmil(Outline &outline, const SmilDocument &document)
{
    showHeader(outline, document.header);
    showLayout(outline, document.header.layout);
    const SmilNode &body = document.body.root;
    outline.line(1, QLatin1String("body") + (body.dur.valid ? QLatin1String(", ") + body.dur.toString() : QString()));
    showContents(outline, 2, body);
}

static void showSlides(Outline &outline, const SmilSlideshow &show, const MessageParts &parts)
{
    int number = 0;
    const QList<SmilSlide> slides = firstSlides(show);
    for (const SmilSlide &slide : slides) {
        outline.line(1,
                     QStringLiteral("slide %1, %2, %3")
                         .arg(++number)
                         .arg(clockText(slide.begin), lengthText(slide.end - slide.begin)));
        for (int i = 0; i < int(slide.cues.size()); ++i) {
            const SmilRef &ref = slide.cues.at(i).ref;
            const int part = slide.parts.at(i);
            outline.line(
                2,
                elementName(ref.type) + QLatin1Char(' ')
                    + (part < 0 ? quoted(ref.src) + QLatin1String(", missing") : quoted(header(parts.at(part).name))));
        }
    }
}

void show(const Message &message, QIODevice &out)
{
    Outline outline(out);
    outline.line(0, printable(message.file));
    showMessage(outline, message);
    if (message.outcome == SmilParser::Complete) {
        showSmil(outline, message.document);
    }
    const SmilSlideshow slideshow = message.slideshow();
    if (message.parts.areKnown()) {
        showSlides(outline, slideshow, message.parts);
    }
    outline.line(1, QLatin1String("plays ") + lengthText(slideshow.duration()));
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    const Message message = readMessage(file, QString());
    if (arguments.json) {
        showJson(message, out);
    } else if (message.isReadable()) {
        show(message, out);
    }
    return message.problem.isNone() ? Result() : Result{false, {message.problem.toString()}};
}

const Command showCommand = {
    "show", "FILE...", "json", "Prints an outline of each message.", "smiltool show message.smil", run};
