// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "timeline.h"

#include <smilparser/smilparser.h>

#include <algorithm>

static const TimelineElement timeline[] = {
    {QStringLiteral("par"),   TimelineElement::Node, SmilNode::Par },
    {QStringLiteral("seq"),   TimelineElement::Node, SmilNode::Seq },
    {QStringLiteral("img"),   TimelineElement::Ref,  SmilRef::Img  },
    {QStringLiteral("text"),  TimelineElement::Ref,  SmilRef::Text },
    {QStringLiteral("audio"), TimelineElement::Ref,  SmilRef::Audio},
    {QStringLiteral("video"), TimelineElement::Ref,  SmilRef::Video},
    {QStringLiteral("ref"),   TimelineElement::Ref,  SmilRef::Ref  },
};

const TimelineElement *findElement(const QString &name)
{
    // Nearly all are written as they stand here, and that is quicker to tell.
    for (const TimelineElement &element : timeline) {
        if (name.size() == element.name.size() && std::equal(name.begin(), name.end(), element.name.begin())) {
            return &element;
        }
    }
    for (const TimelineElement &element : timeline) {
        if (name.compare(element.name, Qt::CaseInsensitive) == 0) {
            return &element;
        }
    }
    return nullptr;
}

const TimelineElement *findElement(TimelineElement::Record record, int type)
{
    for (const TimelineElement &element : timeline) {
        if (element.type == type && element.record == record) {
            return &element;
        }
    }
    return nullptr;
}
