// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "frames.h"
#include "text.h"

// What is played at once beyond these bounds is not told apart any more.
static const int mostMedia = 100;
static const int longestOrder = 300;

QString nameOf(const SmilRef &ref)
{
    static const char16_t signs[] = {u'\u00b6', u'\u25a3', u'\u266a', u'\u25b6', u'\u25c6'};
    const QString sign = QString(QChar(signs[ref.type])) + QLatin1Char(' ');
    const int enough = 80;
    // The end of a long name has its extension.
    return sign
        + (ref.src.isEmpty()             ? QStringLiteral("?")
               : ref.src.size() > enough ? printable(shortened(ref.src, enough - 10) + ref.src.right(10))
                                         : printable(ref.src));
}

static QList<Frame> split(const SmilNode &node);

static void add(Frame &frame, const QString &order, bool sequence)
{
    if (frame.order.size() < longestOrder) {
        const QString separator = sequence ? QStringLiteral(" \u2192 ") : QStringLiteral(" + ");
        frame.order = shortened(frame.order + (frame.order.isEmpty() ? QString() : separator) + order, longestOrder);
    }
}

static void add(Frame &frame, const QList<const SmilRef *> &media)
{
    frame.media += media.mid(0, mostMedia - frame.media.size());
}

/** Adds all that plays in the node, but for one of its children, to one frame. */
static void addAll(Frame &frame, const SmilNode &node, const SmilNode *except = nullptr)
{
    const bool sequence = node.type == SmilNode::Seq;
    for (const SmilNode &child : node.children) {
        if (&child == except || frame.media.size() >= mostMedia) {
            continue;
        }
        Frame inner;
        addAll(inner, child);
        add(frame, inner.media);
        frame.nested = true;
        add(frame, QLatin1Char('(') + inner.order + QLatin1Char(')'), sequence);
    }
    for (const SmilRef &ref : node.refs) {
        if (frame.media.size() >= mostMedia) {
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
        if (frames.size() < mostFrames) {
            frames += split(child);
        }
    }
    for (const SmilRef &ref : node.refs) {
        if (frames.size() < mostFrames) {
            frames.append(Frame{QString(), {&ref}, nameOf(ref)});
        }
    }
    return frames.isEmpty() ? QList<Frame>{Frame()} : frames.mid(0, mostFrames);
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
