// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "bounds.h"
#include "commands.h"
#include "escaping.h"
#include "json.h"
#include "timetext.h"

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
    QString text = QLatin1String(mediaKind(ref).element) + QLatin1Char(' ') + quoted(ref.src);
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

static void showMessage(Outline &outline, const MmsMessage &message, const Parts &parts)
{
    outline.text(1, QLatin1String("from"), header(message.from));
    for (const QString &receiver : message.to) {
        outline.text(1, QLatin1String("to"), header(receiver));
    }
    outline.text(1, QLatin1String("subject"), header(message.subject));
    if (message.date.isValid()) {
        outline.line(1, QLatin1String("date ") + message.date.toString(Qt::ISODate));
    }
    for (int i = 0; i < int(message.parts.size()); ++i) {
        const MmsPart &part = message.parts.at(i);
        outline.line(1,
                     QStringLiteral("part %1, %2, %3 bytes")
                         .arg(quoted(header(parts.at(i).name)), printable(header(part.type)),
                              QString::number(part.data.size())));
    }
}

void show(const Message &message, QIODevice &out)
{
    Outline outline(out);
    outline.line(0, printable(message.file));
    showMessage(outline, message.mms, message.parts);
    showHeader(outline, message.document.header);
    showLayout(outline, message.document.header.layout);
    const SmilNode &body = message.document.body.root;
    outline.line(1, QLatin1String("body") + (body.dur.valid ? QLatin1String(", ") + body.dur.toString() : QString()));
    showContents(outline, 2, body);
    outline.line(1, QLatin1String("plays ") + lengthText(SmilTimeline(message.dom.documentElement()).duration()));
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    Message message;
    const Problem problem =
        readMessage(file, QString(), SmilParser::ClockDurations, message);
    if (problem.isNone()) {
        arguments.json ? showJson(message, out) : show(message, out);
        return Result();
    }
    if (arguments.json) {
        showJson(file, problem, out);
    }
    return {false, {problem.toString()}};
}

const Command showCommand = {
    "show", "FILE...", "json", "Prints an outline of each message.", "smiltool show message.smil", run};
