// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "peers.h"

#include <QtCore/QXmlStreamReader>

#include <libxml/parser.h>
#include <pugixml.hpp>

#include <memory>
#include <utility>

// The peers share this walk. It reads what the benchmarks' message holds, and does not ask where an element stands.
// Each XML reader comes with an element, which has a name(), the text of an attribute(), and forEachChild(), which
// calls a function with each element inside. The walk calls that last.

template<typename Element>
static SmilRegion makeRegion(const Element &element)
{
    SmilRegion region;
    region.id = element.attribute("id");
    region.width = SmilUnit(element.attribute("width"));
    region.height = SmilUnit(element.attribute("height"));
    region.top = SmilUnit(element.attribute("top"));
    region.left = SmilUnit(element.attribute("left"));
    region.fit = element.attribute("fit");
    return region;
}

template<typename Element>
static SmilRef makeRef(SmilRef::Type type, const Element &element)
{
    SmilRef ref(type);
    ref.src = element.attribute("src");
    ref.region = element.attribute("region");
    return ref;
}

template<typename Element>
static void read(const Element &element, SmilLayout &layout, SmilNode &node)
{
    element.forEachChild([&](const Element &child) {
        if (child.name() == QLatin1String("par")) {
            SmilNode slide(SmilNode::Par);
            slide.dur = SmilUnit(child.attribute("dur"));
            read(child, layout, slide);
            node.children.append(std::move(slide));
        } else if (child.name() == QLatin1String("img")) {
            node.refs.append(makeRef(SmilRef::Img, child));
        } else if (child.name() == QLatin1String("text")) {
            node.refs.append(makeRef(SmilRef::Text, child));
        } else if (child.name() == QLatin1String("region")) {
            layout.regions.append(makeRegion(child));
        } else if (child.name() == QLatin1String("root-layout")) {
            layout.rootLayoutWidth = SmilUnit(child.attribute("width"));
            layout.rootLayoutHeight = SmilUnit(child.attribute("height"));
        } else {
            read(child, layout, node); // head, layout, body
        }
    });
}

template<typename Element>
static SmilDocument readDocument(const Element &smil)
{
    SmilDocument document;
    read(smil, document.header.layout, document.body.root);
    return document;
}

namespace
{
/** The element whose start tag the reader is at. */
struct XmlStreamElement {
    QXmlStreamReader &xml;
    QXmlStreamAttributes attributes = xml.attributes();

    auto name() const { return xml.name(); }
    QString attribute(const char *name) const { return attributes.value(QLatin1String(name)).toString(); }

    template<typename Function>
    void forEachChild(Function function) const
    {
        while (xml.readNextStartElement()) {
            function(XmlStreamElement{xml});
            if (xml.isStartElement()) { // the function did not ask for what is inside
                xml.skipCurrentElement();
            }
        }
    }
};

struct Libxml2Element {
    const xmlNode *node;

    QLatin1String name() const { return QLatin1String(reinterpret_cast<const char *>(node->name)); }

    QString attribute(const char *name) const
    {
        xmlChar *const value = xmlGetNoNsProp(node, reinterpret_cast<const xmlChar *>(name));
        const QString text = QString::fromUtf8(reinterpret_cast<const char *>(value));
        xmlFree(value);
        return text;
    }

    template<typename Function>
    void forEachChild(Function function) const
    {
        for (const xmlNode *child = node->children; child; child = child->next) {
            if (child->type == XML_ELEMENT_NODE) {
                function(Libxml2Element{child});
            }
        }
    }
};

struct PugixmlElement {
    pugi::xml_node node;

    QLatin1String name() const { return QLatin1String(node.name()); }

    QString attribute(const char *name) const
    {
        const pugi::xml_attribute attribute = node.attribute(name);
        return attribute ? QString::fromUtf8(attribute.value()) : QString();
    }

    template<typename Function>
    void forEachChild(Function function) const
    {
        for (const pugi::xml_node &child : node.children()) { // no text among them: it is all white space
            function(PugixmlElement{child});
        }
    }
};
}

SmilDocument readWithXmlStream(const QByteArray &text)
{
    QXmlStreamReader xml(text);
    xml.setNamespaceProcessing(false);
    xml.readNextStartElement();
    return readDocument(XmlStreamElement{xml});
}

SmilDocument readWithLibxml2(const QByteArray &text)
{
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> xml(
        xmlReadMemory(text.constData(), int(text.size()), nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_HUGE),
        xmlFreeDoc);
    return readDocument(Libxml2Element{xmlDocGetRootElement(xml.get())});
}

SmilDocument readWithPugixml(const QByteArray &text)
{
    pugi::xml_document xml;
    xml.load_buffer(text.constData(), size_t(text.size()));
    return readDocument(PugixmlElement{xml.document_element()});
}
