// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "write.h"

#include "smilparser/model/elements.h"
#include "smilparser/model/timeline.h"

#include <utility>

// These take their records as const: walking a non-const list would copy it when the host shares it.

static QDomElement renderRef(QDomDocument &dom, const SmilRef &ref)
{
    const TimelineElement *const known = findElement(TimelineElement::Ref, ref.type);
    if (!known) {
        return QDomElement();
    }
    QDomElement element = dom.createElement(known->name);
    write(element, refAttributes, ref);
    return element;
}

static QDomElement renderNode(QDomDocument &dom, const SmilNode &node)
{
    const int type = node.type == SmilNode::Seq ? SmilNode::Seq : SmilNode::Par;
    QDomElement element = dom.createElement(findElement(TimelineElement::Node, type)->name);
    write(element, durAttribute, node.dur);
    for (const SmilNode &child : node.children) {
        element.appendChild(renderNode(dom, child));
    }
    for (const SmilRef &ref : node.refs) {
        element.appendChild(renderRef(dom, ref)); // null for an unknown kind, and that appends nothing
    }
    return element;
}

QDomElement SmilParser::render(SmilBody &body)
{
    QDomElement element = domDocument.createElement(bodyElement);
    for (const SmilNode &node : std::as_const(body.root.children)) {
        element.appendChild(renderNode(domDocument, node));
    }
    return element;
}

QDomElement SmilParser::render(SmilNode &node)
{
    return renderNode(domDocument, node);
}

QDomElement SmilParser::render(SmilRef &ref)
{
    return renderRef(domDocument, ref);
}
