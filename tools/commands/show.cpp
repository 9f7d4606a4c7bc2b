// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/bounds.h"
#include "base/escaping.h"
#include "commands/commands.h"
#include "input/content.h"

#include <QtCore/QIODevice>

static void line(QIODevice &out, int level, const QString &text)
{
    out.write(QByteArray(2 * qMin(level, bounds::indentation), ' ') + text.toUtf8() + '\n');
}

static void text(QIODevice &out, int level, QLatin1String label, const QString &value)
{
    if (!value.isEmpty()) {
        line(out, level, label + QLatin1Char(' ') + quoted(shortened(value, bounds::header)));
    }
}

static QString size(const SmilUnit &width, const SmilUnit &height)
{
    return !width.valid && !height.valid ? QStringLiteral("no size")
        : !width.valid                   ? QLatin1String("height ") + height.toString()
        : !height.valid                  ? QLatin1String("width ") + width.toString()
                                         : width.toString() + QLatin1String(" x ") + height.toString();
}

static QString describe(const SmilRegion &region)
{
    QString text =
        QLatin1String("region ") + quoted(region.id) + QLatin1String(": ") + size(region.width, region.height);
    for (const auto &[edge, distance] : {std::pair(QLatin1String(", left "), region.left),
                                         {QLatin1String(", top "), region.top},
                                         {QLatin1String(", right "), region.right},
                                         {QLatin1String(", bottom "), region.bottom}}) {
        text += distance.valid ? edge + distance.toString() : QString();
    }
    return region.fit.isEmpty() ? text : text + QLatin1String(", fit ") + quoted(region.fit);
}

static QString describe(const SmilRef &ref)
{
    const QString text = elementName(ref.type) + QLatin1Char(' ') + quoted(ref.src);
    return ref.region.isEmpty() ? text : text + QLatin1String(" in ") + quoted(ref.region);
}

static void showContents(QIODevice &out, int level, const SmilNode &node)
{
    for (const SmilNode &child : node.children) {
        const QString name = child.type == SmilNode::Seq ? QStringLiteral("seq, ") : QStringLiteral("par, ");
        line(out, level, name + (child.dur.valid ? child.dur.toString() : QStringLiteral("no duration")));
        showContents(out, level + 1, child);
    }
    for (const SmilRef &ref : node.refs) {
        line(out, level, describe(ref));
    }
}

static void showHeader(QIODevice &out, const SmilHeader &header)
{
    line(out, 1, QStringLiteral("head"));
    text(out, 2, QLatin1String("id"), header.id);
    text(out, 2, QLatin1String("title"), header.title);
    text(out, 2, QLatin1String("class"), header.className);
    for (const SmilMeta &meta : header.metas) {
        const QString id = meta.id.isEmpty() ? QString() : QLatin1String(", id ") + quoted(meta.id);
        line(out, 2, QLatin1String("meta ") + quoted(meta.name) + QLatin1String(": ") + quoted(meta.content) + id);
    }
    const SmilLayout &layout = header.layout;
    line(out, 1, QStringLiteral("layout"));
    line(out, 2, QLatin1String("root-layout: ") + size(layout.rootLayoutWidth, layout.rootLayoutHeight));
    if (layout.topLayoutWidth.valid || layout.topLayoutHeight.valid) {
        line(out, 2, QLatin1String("topLayout: ") + size(layout.topLayoutWidth, layout.topLayoutHeight));
    }
    for (const SmilRegion &region : layout.regions) {
        line(out, 2, describe(region));
    }
}

QString partText(const QString &name, const QString &type, const QByteArray &data)
{
    return QStringLiteral("%1, %2, %3 bytes")
        .arg(quoted(shortened(name, bounds::header)), printable(shortened(type, bounds::header)),
             QString::number(data.size()));
}

static void showMessage(QIODevice &out, const Message &message)
{
    const MmsMessage &mms = message.mms;
    text(out, 1, QLatin1String("from"), mms.from);
    for (const QString &receiver : mms.to) {
        text(out, 1, QLatin1String("to"), receiver);
    }
    text(out, 1, QLatin1String("subject"), mms.subject);
    if (mms.date.isValid()) {
        line(out, 1, QLatin1String("date ") + mms.date.toString(Qt::ISODate));
    }
    for (int i = 0; i < int(mms.parts.size()); ++i) {
        line(out, 1, QLatin1String("part ") + partText(message.parts.at(i).name, mms.parts.at(i).type, mms.data.at(i)));
    }
}

static void showSlides(QIODevice &out, const SmilSlideshow &show, const MessageParts &parts)
{
    int number = 0;
    const QList<SmilSlide> slides = firstSlides(show);
    for (const SmilSlide &slide : slides) {
        line(out, 1,
             QStringLiteral("slide %1, %2, %3")
                 .arg(++number)
                 .arg(clockText(slide.begin), lengthText(slide.end - slide.begin)));
        for (int i = 0; i < int(slide.cues.size()); ++i) {
            const SmilRef &ref = slide.cues.at(i).ref;
            const int part = slide.parts.at(i);
            line(out, 2,
                 elementName(ref.type) + QLatin1Char(' ')
                     + (part < 0 ? quoted(ref.src) + QLatin1String(", missing")
                                 : quoted(shortened(parts.at(part).name, bounds::header))));
        }
        if (slide.parts.size() > slide.cues.size()) {
            line(out, 2, QStringLiteral("and %1 more").arg(slide.parts.size() - slide.cues.size()));
        }
    }
    if (number < show.count()) {
        line(out, 1, QStringLiteral("and %1 more slides").arg(show.count() - number));
    }
}

void show(const Message &message, QIODevice &out)
{
    line(out, 0, printable(message.file));
    showMessage(out, message);
    if (message.outcome == SmilParser::Complete) {
        const SmilNode &body = message.document.body.root;
        showHeader(out, message.document.header);
        line(out, 1, QLatin1String("body") + (body.dur.valid ? QLatin1String(", ") + body.dur.toString() : QString()));
        showContents(out, 2, body);
    }
    const SmilSlideshow slideshow = message.slideshow();
    if (message.parts.areKnown()) {
        showSlides(out, slideshow, message.parts);
    }
    line(out, 1, QLatin1String("plays ") + lengthText(slideshow.duration()));
}

static Result runShow(const QString &file, const Arguments &arguments, QIODevice &out)
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
    "show", "FILE...", "json", "Prints an outline of each message.", "smiltool show message.smil", runShow};
