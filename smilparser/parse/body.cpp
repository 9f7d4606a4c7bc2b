// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "domreader.h"

#include "smilparser/model/vocabulary.h"

#include <utility>

// The next functions are not part of readNodes(), where their locals would take up stack at every level of nesting:
// there are up to 512, and some threads have 128 KiB.

Q_NEVER_INLINE static void readDuration(const QDomElement &element, SmilUnit &dur, SmilParser::ReadOptions options)
{
    const QString text = element.attribute(durAttribute, absent);
    dur.valid = options.testFlag(SmilParser::ClockDurations) && dur.convertClock(text);
    if (!dur.valid) {
        dur = SmilUnit(text);
    }
}

Q_NEVER_INLINE static void readRef(const QDomElement &element, int type, QList<SmilRef> &refs)
{
    SmilRef ref(type);
    readAttributes(element, refAttributes, ref);
    refs.append(std::move(ref));
}

Q_NEVER_INLINE static const TimelineElement *findElement(const QDomElement &element)
{
    return findElement(element.tagName());
}

Q_NEVER_INLINE static void append(QList<SmilNode> &nodes, SmilNode &node)
{
    nodes.append(std::move(node));
}

bool readNodes(const QDomElement &element, SmilNode &node, int depth, SmilParser::ReadOptions options)
{
    if (depth > SmilParser::MaxDepth) {
        return false;
    }
    readDuration(element, node.dur, options);

    for (QDomNode sibling = element.firstChild(); !sibling.isNull(); sibling = sibling.nextSibling()) {
        const QDomElement child = sibling.toElement();
        const TimelineElement *const known = findElement(child);
        if (!known) {
            continue;
        }
        if (known->record == TimelineElement::Ref) {
            readRef(child, known->type, node.refs);
            continue;
        }
        // Appended only when complete, so that a list never shows a node half read.
        SmilNode nested(known->type);
        if (!readNodes(child, nested, depth + 1, options)) {
            return false;
        }
        append(node.children, nested);
    }
    return true;
}

bool SmilParser::parseSmilBody(QDomElement &body)
{
    return parseSmilNodes(body, document.body.root, 0);
}

bool SmilParser::parseSmilNodes(QDomElement &element, SmilNode &node, int depth)
{
    return readNodes(element, node, depth, AsWritten);
}
