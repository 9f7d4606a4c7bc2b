// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "smilparser/model/region.h"

static SmilUnit measure(const QDomElement &element, const QString &attribute)
{
    return SmilUnit(element.attribute(attribute));
}

static SmilMeta readMeta(const QDomElement &element)
{
    SmilMeta meta;
    meta.id = element.attribute(QStringLiteral("id"));
    meta.name = element.attribute(QStringLiteral("name"));
    meta.content = element.attribute(QStringLiteral("content"));
    return meta;
}

static SmilRegion readRegion(const QDomElement &element)
{
    SmilRegion region;
    for (const RegionAttribute &attribute : regionAttributes) {
        if (attribute.text) {
            region.*attribute.text = element.attribute(attribute.name);
        } else {
            region.*attribute.measure = measure(element, attribute.name);
        }
    }
    return region;
}

bool SmilParser::parseSmilHead(QDomElement &head)
{
    SmilHeader &header = document.header;
    header.id = head.attribute(QStringLiteral("id"));
    header.title = head.attribute(QStringLiteral("title"));
    header.className = head.attribute(QStringLiteral("class"));

    const QString name = QStringLiteral("meta");
    for (QDomElement child = head.firstChildElement(name); !child.isNull(); child = child.nextSiblingElement(name)) {
        header.metas.append(readMeta(child));
    }

    QDomElement layout = head.firstChildElement(QStringLiteral("layout"));
    return layout.isNull() || parseLayout(layout);
}

bool SmilParser::parseLayout(QDomElement &layout)
{
    SmilLayout &record = document.header.layout;
    const QDomElement root = layout.firstChildElement(QStringLiteral("root-layout"));
    if (!root.isNull()) {
        record.rootLayoutWidth = measure(root, QStringLiteral("width"));
        record.rootLayoutHeight = measure(root, QStringLiteral("height"));
    }
    const QDomElement top = layout.firstChildElement(QStringLiteral("topLayout"));
    if (!top.isNull()) {
        record.topLayoutWidth = measure(top, QStringLiteral("width"));
        record.topLayoutHeight = measure(top, QStringLiteral("height"));
    }

    const QString name = QStringLiteral("region");
    for (QDomElement child = layout.firstChildElement(name); !child.isNull(); child = child.nextSiblingElement(name)) {
        record.regions.append(readRegion(child));
    }
    return true;
}
