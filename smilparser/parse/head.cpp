// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "domreader.h"

#include "smilparser/model/vocabulary.h"

static SmilUnit measure(const QDomElement &element, const QString &attribute)
{
    return SmilUnit(element.attribute(attribute));
}

/** A record for each child of that name. */
template<typename Record, std::size_t Count>
static void readAll(const QDomElement &parent, const QString &name, const Attribute<Record> (&attributes)[Count],
                    QList<Record> &records)
{
    for (QDomElement child = parent.firstChildElement(name); !child.isNull(); child = child.nextSiblingElement(name)) {
        Record record;
        readAttributes(child, attributes, record);
        records.append(record);
    }
}

void readHead(const QDomElement &head, SmilHeader &header)
{
    readAttributes(head, headAttributes, header);
    readAll(head, metaElement, metaAttributes, header.metas);
    const QDomElement layout = head.firstChildElement(layoutElement);
    if (!layout.isNull()) {
        readLayout(layout, header.layout);
    }
}

void readLayout(const QDomElement &layout, SmilLayout &record)
{
    const QDomElement root = layout.firstChildElement(rootLayoutElement);
    if (!root.isNull()) {
        record.rootLayoutWidth = measure(root, widthAttribute);
        record.rootLayoutHeight = measure(root, heightAttribute);
    }
    const QDomElement top = layout.firstChildElement(topLayoutElement);
    if (!top.isNull()) {
        record.topLayoutWidth = measure(top, widthAttribute);
        record.topLayoutHeight = measure(top, heightAttribute);
    }
    readAll(layout, regionElement, regionAttributes, record.regions);
}

bool SmilParser::parseSmilHead(QDomElement &head)
{
    readHead(head, document.header);
    return true;
}

bool SmilParser::parseLayout(QDomElement &layout)
{
    readLayout(layout, document.header.layout);
    return true;
}
