// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "frames.h"
#include "bounds.h"
#include "escaping.h"
#include "mediakind.h"

QString nameOf(const SmilRef &ref)
{
    const QString sign = QString(QChar(mediaKind(ref).sign)) + QLatin1Char(' ');
    if (ref.src.isEmpty()) {
        return sign + QLatin1Char('?');
    }
    // The end of a long name has its extension.
    const bool isLong = ref.src.size() > bounds::name;
    return sign + printable(isLong ? shortened(ref.src, bounds::name - 10) + ref.src.right(10) : ref.src);
}

static QList<Frame> split(const SmilNode &node);

static void add(Frame &frame, const QString &order, bool sequence)
{
    if (frame.order.size() < bounds::order) {
        const QString separator = sequence ? QStringLiteral(" \u2192 ") : QStringLiteral(" + ");
        frame.order = shortened(frame.order + (frame.order.isEmpty() ? QString() : separator) + order, bounds::order);
    }
}

static void add(Frame &frame, const QList<const SmilRef *> &media)
{
    frame.media += media.mid(0, bounds::media - frame.media.size());
}

/** Adds all that plays in the node, but for one of its children, to one frame. */
static void addAll(Frame &frame, const SmilNode &node, const SmilNode *except = nullptr)
{
    const bool sequence = node.type == SmilNode::Seq;
    for (const SmilNode &child : node.children) {
        if (&child == except || frame.media.size() >= bounds::media) {
            continue;
        }
        Frame inner;
        addAll(inner, child);
        add(frame, inner.media);
        frame.nested = true;
        add(frame, QLatin1Char('(') + inner.order + QLatin1Char(')'), sequence);
    }
    for (const SmilRef &ref : node.refs) {
        if (frame.media.size() >= bounds::media) {
            return;
        }
        frame.media.append(&ref);
        add(frame, nameOf(ref), sequence);
    }
}

static QList<Frame> splitSequence(const SmilNode &node)
{
    QList<Frame> frames;
    for (const SmilNode &child : node.children) {
        if (frames.size() < bounds::frames) {
            frames += split(child);
        }
    }
    for (const SmilRef &ref : node.refs) {
        if (frames.size() < bounds::frames) {
            frames.append(Frame{QString(), {&ref}, nameOf(ref)});
        }
    }
    return frames.isEmpty() ? QList<Frame>{Frame()} : frames.mid(0, bounds::frames);
}

static QList<Frame> splitParallel(const SmilNode &node)
{
    QList<Frame> frames{Frame()};
    const SmilNode *longest = nullptr;
    for (const SmilNode &child : node.children) {
        const QList<Frame> inner = split(child);
        if (inner.size() > frames.size()) {
            frames = inner;
            longest = &child;
        }
    }
    Frame others;
    addAll(others, node, longest);
    for (Frame &frame : frames) {
        add(frame, others.media);
        frame.nested = frame.nested || others.nested;
        if (!others.order.isEmpty()) {
            add(frame, others.order, false);
        }
    }
    return frames;
}

static QList<Frame> split(const SmilNode &node)
{
    QList<Frame> frames = node.type == SmilNode::Seq ? splitSequence(node) : splitParallel(node);
    for (Frame &frame : frames) {
        if (frame.dur.isEmpty() && node.dur.valid) {
            frame.dur = (frames.size() > 1 ? QStringLiteral("within ") : QString()) + node.dur.toString();
        }
    }
    return frames;
}

QList<Frame> framesOf(const SmilNode &body)
{
    if (body.children.isEmpty() && body.refs.isEmpty()) {
        return {};
    }
    QList<Frame> frames = splitSequence(body);
    for (Frame &frame : frames) {
        if (frame.dur.isEmpty()) {
            frame.dur = body.dur.valid ? QLatin1String("within ") + body.dur.toString() : QStringLiteral("not stated");
        }
    }
    return frames;
}
