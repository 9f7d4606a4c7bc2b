// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include "smilparser/model/timeline.h"

#include <utility>

// Made once, not at each look-up.
static const QString absent;
static const QString dur = QStringLiteral("dur");
static const QString region = QStringLiteral("region");
static const QString src = QStringLiteral("src");

static SmilRef readRef(const QDomElement &element, int type)
{
    SmilRef ref(type);
    ref.region = element.attribute(region, absent);
    ref.src = element.attribute(src, absent);
    return ref;
}

bool SmilParser::parseSmilBody(QDomElement &body)
{
    return parseSmilNodes(body, document.body.root, 0);
}

bool SmilParser::parseSmilNodes(QDomElement &element, SmilNode &node, int depth)
{
    if (depth > MaxDepth) {
        return false;
    }
    node.dur = SmilUnit(element.attribute(dur, absent));

    for (QDomNode sibling = element.firstChild(); !sibling.isNull(); sibling = sibling.nextSibling()) {
        QDomElement child = sibling.toElement();
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
        if (!parseSmilNodes(child, nested, depth + 1)) {
            return false;
        }
        node.children.append(std::move(nested));
    }
    return true;
}
