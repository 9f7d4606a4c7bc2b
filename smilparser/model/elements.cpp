// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "elements.h"

#include <smilparser/smilparser.h>

using Elements = SmilElement[7];

static const Elements &elements()
{
    static const Elements table = {
        {QStringLiteral("par"),   SmilElement::Node, SmilNode::Par },
        {QStringLiteral("seq"),   SmilElement::Node, SmilNode::Seq },
        {QStringLiteral("img"),   SmilElement::Ref,  SmilRef::Img  },
        {QStringLiteral("text"),  SmilElement::Ref,  SmilRef::Text },
        {QStringLiteral("audio"), SmilElement::Ref,  SmilRef::Audio},
        {QStringLiteral("video"), SmilElement::Ref,  SmilRef::Video},
        {QStringLiteral("ref"),   SmilElement::Ref,  SmilRef::Ref  },
    };
    return table;
}

const SmilElement *findElement(const QString &name)
{
    for (const SmilElement &element : elements()) {
        if (name.compare(element.name, Qt::CaseInsensitive) == 0) {
            return &element;
        }
    }
    return nullptr;
}

QString elementName(SmilElement::Record record, int type)
{
    for (const SmilElement &element : elements()) {
        if (element.record == record && element.type == type) {
            return element.name;
        }
    }
    return QString();
}
