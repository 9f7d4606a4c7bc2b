// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "elements.h"

#include <smilparser/smilparser.h>

#include <algorithm>

static const SmilElement elements[] = {
    {QStringLiteral("par"),   SmilElement::Node, SmilNode::Par },
    {QStringLiteral("seq"),   SmilElement::Node, SmilNode::Seq },
    {QStringLiteral("img"),   SmilElement::Ref,  SmilRef::Img  },
    {QStringLiteral("text"),  SmilElement::Ref,  SmilRef::Text },
    {QStringLiteral("audio"), SmilElement::Ref,  SmilRef::Audio},
    {QStringLiteral("video"), SmilElement::Ref,  SmilRef::Video},
    {QStringLiteral("ref"),   SmilElement::Ref,  SmilRef::Ref  },
};

const SmilElement *findElement(const QString &name)
{
    // Nearly all are written as they stand here, and that is quicker to tell.
    for (const SmilElement &element : elements) {
        if (name.size() == element.name.size() && std::equal(name.begin(), name.end(), element.name.begin())) {
            return &element;
        }
    }
    for (const SmilElement &element : elements) {
        if (name.compare(element.name, Qt::CaseInsensitive) == 0) {
            return &element;
        }
    }
    return nullptr;
}

const SmilElement *findElement(SmilElement::Record record, int type)
{
    for (const SmilElement &element : elements) {
        if (element.type == type && element.record == record) {
            return &element;
        }
    }
    return nullptr;
}
