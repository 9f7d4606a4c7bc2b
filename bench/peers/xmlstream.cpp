// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "peers.h"

#include <QtCore/QXmlStreamReader>

#include <utility>

static QString attribute(const QXmlStreamAttributes &attributes, QLatin1String name)
{
    return attributes.value(name).toString();
}

static SmilUnit measure(const QXmlStreamAttributes &attributes, QLatin1String name)
{
    return SmilUnit(attribute(attributes, name));
}

static SmilRegion readRegion(const QXmlStreamAttributes &attributes)
{
    SmilRegion region;
    region.id = attribute(attributes, QLatin1String("id"));
    region.width = measure(attributes, QLatin1String("width"));
    region.height = measure(attributes, QLatin1String("height"));
    region.top = measure(attributes, QLatin1String("top"));
    region.bottom = measure(attributes, QLatin1String("bottom"));
    region.left = measure(attributes, QLatin1String("left"));
    region.right = measure(attributes, QLatin1String("right"));
    region.fit = attribute(attributes, QLatin1String("fit"));
    return region;
}

static void readLayout(QXmlStreamReader &xml, SmilLayout &layout)
{
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("root-layout")) {
            layout.rootLayoutWidth = measure(attributes, QLatin1String("width"));
            layout.rootLayoutHeight = measure(attributes, QLatin1String("height"));
        } else if (xml.name() == QLatin1String("topLayout")) {
            layout.topLayoutWidth = measure(attributes, QLatin1String("width"));
            layout.topLayoutHeight = measure(attributes, QLatin1String("height"));
        } else if (xml.name() == QLatin1String("region")) {
            layout.regions.append(readRegion(attributes));
        }
        xml.skipCurrentElement();
    }
}

static SmilMeta readMeta(const QXmlStreamAttributes &attributes)
{
    SmilMeta meta;
    meta.id = attribute(attributes, QLatin1String("id"));
    meta.name = attribute(attributes, QLatin1String("name"));
    meta.content = attribute(attributes, QLatin1String("content"));
    return meta;
}

static void readHead(QXmlStreamReader &xml, SmilHeader &header)
{
    header.id = attribute(xml.attributes(), QLatin1String("id"));
    header.title = attribute(xml.attributes(), QLatin1String("title"));
    header.className = attribute(xml.attributes(), QLatin1String("class"));
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("layout")) {
            readLayout(xml, header.layout);
            continue;
        }
        if (xml.name() == QLatin1String("meta")) {
            header.metas.append(readMeta(xml.attributes()));
        }
        xml.skipCurrentElement();
    }
}

static void readNode(QXmlStreamReader &xml, SmilNode &node)
{
    node.dur = measure(xml.attributes(), QLatin1String("dur"));
    while (xml.readNextStartElement()) {
        if (const int type = nodeType(xml.name())) {
            SmilNode nested(type);
            readNode(xml, nested);
            node.children.append(std::move(nested));
            continue;
        }
        const int type = refType(xml.name());
        if (type >= 0) {
            const QXmlStreamAttributes attributes = xml.attributes();
            SmilRef ref(type);
            ref.src = attribute(attributes, QLatin1String("src"));
            ref.region = attribute(attributes, QLatin1String("region"));
            node.refs.append(std::move(ref));
        }
        xml.skipCurrentElement();
    }
}

SmilDocument readWithXmlStream(const QByteArray &bytes)
{
    SmilDocument document;
    QXmlStreamReader xml(bytes);
    xml.setNamespaceProcessing(false);
    xml.readNextStartElement(); // smil
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("head")) {
            readHead(xml, document.header);
        } else if (xml.name() == QLatin1String("body")) {
            readNode(xml, document.body.root);
        } else {
            xml.skipCurrentElement();
        }
    }
    return document;
}
