// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "xmlstream.h"

#include <QtCore/QXmlStreamReader>

#include <utility>

static SmilUnit measure(const QXmlStreamAttributes &attributes, const char *name)
{
    return SmilUnit(attributes.value(QLatin1String(name)).toString());
}

static SmilRegion makeRegion(const QXmlStreamAttributes &attributes)
{
    SmilRegion region;
    region.id = attributes.value(QLatin1String("id")).toString();
    region.width = measure(attributes, "width");
    region.height = measure(attributes, "height");
    region.top = measure(attributes, "top");
    region.left = measure(attributes, "left");
    region.fit = attributes.value(QLatin1String("fit")).toString();
    return region;
}

static SmilRef makeRef(SmilRef::Type type, const QXmlStreamAttributes &attributes)
{
    SmilRef ref(type);
    ref.src = attributes.value(QLatin1String("src")).toString();
    ref.region = attributes.value(QLatin1String("region")).toString();
    return ref;
}

/** Reads what is in the element whose start tag the reader is at; it does not ask where that stands. */
static void read(QXmlStreamReader &xml, SmilLayout &layout, SmilNode &node)
{
    while (xml.readNextStartElement()) {
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("par")) {
            SmilNode slide(SmilNode::Par);
            slide.dur = measure(attributes, "dur");
            read(xml, layout, slide);
            node.children.append(std::move(slide));
            continue;
        }
        if (xml.name() == QLatin1String("img")) {
            node.refs.append(makeRef(SmilRef::Img, attributes));
        } else if (xml.name() == QLatin1String("text")) {
            node.refs.append(makeRef(SmilRef::Text, attributes));
        } else if (xml.name() == QLatin1String("region")) {
            layout.regions.append(makeRegion(attributes));
        } else if (xml.name() == QLatin1String("root-layout")) {
            layout.rootLayoutWidth = measure(attributes, "width");
            layout.rootLayoutHeight = measure(attributes, "height");
        }
        read(xml, layout, node); // nothing in media, regions and sizes; all the rest in smil, head, layout and body
    }
}

SmilDocument readWithXmlStream(const QByteArray &text)
{
    QXmlStreamReader xml(text);
    xml.setNamespaceProcessing(false);
    SmilDocument document;
    read(xml, document.header.layout, document.body.root);
    return document;
}
