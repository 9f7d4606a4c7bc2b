// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "attributes.h"
#include "smilparser/model/region.h"

#include <utility>

static void writeMeta(QDomElement &element, const SmilMeta &meta)
{
    write(element, QStringLiteral("id"), meta.id);
    write(element, QStringLiteral("name"), meta.name);
    write(element, QStringLiteral("content"), meta.content);
}

static void writeRegion(QDomElement &element, const SmilRegion &region)
{
    for (const RegionAttribute &attribute : regionAttributes) {
        if (attribute.text) {
            write(element, attribute.name, region.*attribute.text);
        } else {
            write(element, attribute.name, region.*attribute.measure);
        }
    }
}

QDomElement SmilParser::render(SmilHeader &header)
{
    QDomElement head = domDocument.createElement(QStringLiteral("head"));
    write(head, QStringLiteral("id"), header.id);
    write(head, QStringLiteral("title"), header.title);
    write(head, QStringLiteral("class"), header.className);

    for (const SmilMeta &record : std::as_const(header.metas)) {
        QDomElement meta = domDocument.createElement(QStringLiteral("meta"));
        writeMeta(meta, record);
        head.appendChild(meta);
    }
    head.appendChild(render(header.layout));
    return head;
}

QDomElement SmilParser::render(SmilLayout &layout)
{
    QDomElement element = domDocument.createElement(QStringLiteral("layout"));
    QDomElement root = domDocument.createElement(QStringLiteral("root-layout"));
    // The top layout's size, not the root layout's: the whole is shown in that.
    write(root, QStringLiteral("width"), layout.topLayoutWidth);
    write(root, QStringLiteral("height"), layout.topLayoutHeight);
    element.appendChild(root);

    for (const SmilRegion &record : std::as_const(layout.regions)) {
        QDomElement region = domDocument.createElement(QStringLiteral("region"));
        writeRegion(region, record);
        element.appendChild(region);
    }
    return element;
}
