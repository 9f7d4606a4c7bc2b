// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "walks.h"

#include "smilparser/model/attributes.h"
#include "smilparser/model/timeline.h"

#include <utility>

static const QString absent; // made once, not at each look-up

static SmilUnit readDuration(const QDomElement &element, SmilParser::ReadOptions options)
{
    const QString text = element.attribute(durAttribute, absent);
    SmilUnit clock;
    clock.valid = options.testFlag(SmilParser::ClockDurations) && clock.convertClock(text);
    return clock.valid ? clock : SmilUnit(text);
}

static SmilRef readRef(const QDomElement &element, int type)
{
    SmilRef ref(type);
    for (const Attribute<SmilRef> &attribute : refAttributes) {
        ref.*attribute.text = element.attribute(attribute.name, absent);
    }
    return ref;
}

bool readNodes(const QDomElement &element, SmilNode &node, int depth, SmilParser::ReadOptions options)
{
    if (depth > SmilParser::MaxDepth) {
        return false;
    }
    node.dur = readDuration(element, options);

    for (QDomNode sibling = element.firstChild(); !sibling.isNull(); sibling = sibling.nextSibling()) {
        const QDomElement child = sibling.toElement();
        const TimelineElement *const known = findElement(child.tagName());
        if (!known) {
            continue;
        }
        if (known->record == TimelineElement::Ref) {
            node.refs.append(readRef(child, known->type));
            continue;
        }
        // Appended only when complete, so that a list never shows a node half read.
        SmilNode nested(known->type);
        if (!readNodes(child, nested, depth + 1, options)) {
            return false;
        }
        node.children.append(std::move(nested));
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
