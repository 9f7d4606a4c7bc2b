// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "peers.h"

#include <QtCore/QXmlStreamReader>

#include <utility>

static auto attributesOf(const QXmlStreamReader &xml)
{
    return
        [attributes = xml.attributes()](const char *name) { return attributes.value(QLatin1String(name)).toString(); };
}

static void readLayout(QXmlStreamReader &xml, SmilLayout &layout)
{
    while (xml.readNextStartElement()) {
        const auto attribute = attributesOf(xml);
        if (xml.name() == QLatin1String("root-layout")) {
            layout.rootLayoutWidth = SmilUnit(attribute("width"));
            layout.rootLayoutHeight = SmilUnit(attribute("height"));
        } else if (xml.name() == QLatin1String("topLayout")) {
            layout.topLayoutWidth = SmilUnit(attribute("width"));
            layout.topLayoutHeight = SmilUnit(attribute("height"));
        } else if (xml.name() == QLatin1String("region")) {
            layout.regions.append(makeRegion(attribute));
        }
        xml.skipCurrentElement();
    }
}

static void readHead(QXmlStreamReader &xml, SmilHeader &header)
{
    const auto attribute = attributesOf(xml);
    header.id = attribute("id");
    header.title = attribute("title");
    header.className = attribute("class");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("layout")) {
            readLayout(xml, header.layout);
            continue;
        }
        if (xml.name() == QLatin1String("meta")) {
            header.metas.append(makeMeta(attributesOf(xml)));
        }
        xml.skipCurrentElement();
    }
}

static void readNode(QXmlStreamReader &xml, SmilNode &node)
{
    node.dur = SmilUnit(attributesOf(xml)("dur"));
    while (xml.readNextStartElement()) {
        if (const int type = nodeType(xml.name())) {
            SmilNode nested(type);
            readNode(xml, nested);
            node.children.append(std::move(nested));
            continue;
        }
        const int type = refType(xml.name());
        if (type >= 0) {
            node.refs.append(makeRef(type, attributesOf(xml)));
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
