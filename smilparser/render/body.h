// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BODY_H
#define SMILPARSER_BODY_H

#include "write.h"

#include "smilparser/model/elements.h"
#include "smilparser/model/timeline.h"

// These take their records as const: walking a non-const list would copy it when the host shares it.

template<typename Out>
typename Out::Element writeRef(Out &out, const SmilRef &ref)
{
    const TimelineElement *const known = findElement(TimelineElement::Ref, ref.type);
    if (!known) {
        return typename Out::Element();
    }
    typename Out::Element element = out.begin(known->name);
    write(out, element, refAttributes, ref);
    out.end();
    return element;
}

template<typename Out>
typename Out::Element writeNode(Out &out, const SmilNode &node)
{
    const int type = node.type == SmilNode::Seq ? SmilNode::Seq : SmilNode::Par;
    typename Out::Element element = out.begin(findElement(TimelineElement::Node, type)->name);
    write(out, element, durAttribute, node.dur);
    for (const SmilNode &child : node.children) {
        out.append(element, writeNode(out, child));
    }
    for (const SmilRef &ref : node.refs) {
        out.append(element, writeRef(out, ref)); // null for an unknown kind, and that appends nothing
    }
    out.end();
    return element;
}

template<typename Out>
typename Out::Element writeBody(Out &out, const SmilBody &body)
{
    typename Out::Element element = out.begin(bodyElement);
    for (const SmilNode &node : body.root.children) {
        out.append(element, writeNode(out, node));
    }
    out.end();
    return element;
}

#endif
