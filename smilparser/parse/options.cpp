// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "options.h"

#include "smilparser/model/timeline.h"

#include <smilparser/smilparser.h>

static bool isNode(const QDomElement &element)
{
    const TimelineElement *const known = findElement(element.tagName());
    return known && known->record == TimelineElement::Node;
}

void readClockDurations(const QDomElement &element, SmilNode &node)
{
    SmilUnit clock;
    clock.valid = clock.convertClock(element.attribute(QStringLiteral("dur")));
    if (clock.valid) {
        node.dur = clock;
    }
    // Each node has its element: the call levels are as many as when the nodes were read.
    QDomElement child = element.firstChildElement();
    for (SmilNode &nested : node.children) {
        while (!child.isNull() && !isNode(child)) {
            child = child.nextSiblingElement();
        }
        readClockDurations(child, nested);
        child = child.nextSiblingElement();
    }
}

void keepRootSize(SmilLayout &layout)
{
    if (!layout.topLayoutWidth.valid) {
        layout.topLayoutWidth = layout.rootLayoutWidth;
    }
    if (!layout.topLayoutHeight.valid) {
        layout.topLayoutHeight = layout.rootLayoutHeight;
    }
}
