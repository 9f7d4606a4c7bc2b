// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "peers.h"

#include <libxml/parser.h>

#include <memory>
#include <utility>

static QLatin1String name(const xmlNode *node)
{
    return QLatin1String(reinterpret_cast<const char *>(node->name));
}

static QString attribute(const xmlNode *node, const char *attribute)
{
    xmlChar *const value = xmlGetNoNsProp(node, reinterpret_cast<const xmlChar *>(attribute));
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(value));
    xmlFree(value);
    return text;
}

static auto attributesOf(const xmlNode *node)
{
    return [node](const char *name) { return attribute(node, name); };
}

static SmilUnit measure(const xmlNode *node, const char *name)
{
    return SmilUnit(attribute(node, name));
}

static void readLayout(const xmlNode *node, SmilLayout &layout)
{
    for (const xmlNode *child = node->children; child; child = child->next) {
        if (name(child) == QLatin1String("root-layout")) {
            layout.rootLayoutWidth = measure(child, "width");
            layout.rootLayoutHeight = measure(child, "height");
        } else if (name(child) == QLatin1String("topLayout")) {
            layout.topLayoutWidth = measure(child, "width");
            layout.topLayoutHeight = measure(child, "height");
        } else if (name(child) == QLatin1String("region")) {
            layout.regions.append(makeRegion(attributesOf(child)));
        }
    }
}

static void readHead(const xmlNode *node, SmilHeader &header)
{
    header.id = attribute(node, "id");
    header.title = attribute(node, "title");
    header.className = attribute(node, "class");
    for (const xmlNode *child = node->children; child; child = child->next) {
        if (name(child) == QLatin1String("meta")) {
            header.metas.append(makeMeta(attributesOf(child)));
        } else if (name(child) == QLatin1String("layout")) {
            readLayout(child, header.layout);
        }
    }
}

static void readNode(const xmlNode *element, SmilNode &node)
{
    node.dur = measure(element, "dur");
    for (const xmlNode *child = element->children; child; child = child->next) {
        if (child->type != XML_ELEMENT_NODE) {
            continue; // text is called "text" here
        }
        if (const int type = nodeType(name(child))) {
            SmilNode nested(type);
            readNode(child, nested);
            node.children.append(std::move(nested));
            continue;
        }
        const int type = refType(name(child));
        if (type >= 0) {
            node.refs.append(makeRef(type, attributesOf(child)));
        }
    }
}

SmilDocument readWithLibxml2(const QByteArray &bytes)
{
    SmilDocument document;
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> xml(
        xmlReadMemory(bytes.constData(), int(bytes.size()), nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_HUGE),
        xmlFreeDoc);
    for (const xmlNode *child = xmlDocGetRootElement(xml.get())->children; child; child = child->next) {
        if (name(child) == QLatin1String("head")) {
            readHead(child, document.header);
        } else if (name(child) == QLatin1String("body")) {
            readNode(child, document.body.root);
        }
    }
    return document;
}
