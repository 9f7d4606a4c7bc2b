// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "peers.h"

#include <pugixml.hpp>

#include <utility>

static QString attribute(const pugi::xml_node &node, const char *name)
{
    return QString::fromUtf8(node.attribute(name).value());
}

static auto attributesOf(const pugi::xml_node &node)
{
    return [node](const char *name) { return attribute(node, name); };
}

static SmilUnit measure(const pugi::xml_node &node, const char *name)
{
    return SmilUnit(attribute(node, name));
}

static void readLayout(const pugi::xml_node &node, SmilLayout &layout)
{
    const pugi::xml_node root = node.child("root-layout");
    layout.rootLayoutWidth = measure(root, "width");
    layout.rootLayoutHeight = measure(root, "height");
    const pugi::xml_node top = node.child("topLayout");
    layout.topLayoutWidth = measure(top, "width");
    layout.topLayoutHeight = measure(top, "height");
    for (const pugi::xml_node &region : node.children("region")) {
        layout.regions.append(makeRegion(attributesOf(region)));
    }
}

static void readHead(const pugi::xml_node &node, SmilHeader &header)
{
    header.id = attribute(node, "id");
    header.title = attribute(node, "title");
    header.className = attribute(node, "class");
    for (const pugi::xml_node &meta : node.children("meta")) {
        header.metas.append(makeMeta(attributesOf(meta)));
    }
    readLayout(node.child("layout"), header.layout);
}

static void readNode(const pugi::xml_node &element, SmilNode &node)
{
    node.dur = measure(element, "dur");
    for (const pugi::xml_node &child : element.children()) {
        const QLatin1String name(child.name());
        if (const int type = nodeType(name)) {
            SmilNode nested(type);
            readNode(child, nested);
            node.children.append(std::move(nested));
            continue;
        }
        const int type = refType(name);
        if (type >= 0) {
            node.refs.append(makeRef(type, attributesOf(child)));
        }
    }
}

SmilDocument readWithPugixml(const QByteArray &bytes)
{
    SmilDocument document;
    pugi::xml_document xml;
    xml.load_buffer(bytes.constData(), size_t(bytes.size()));
    const pugi::xml_node smil = xml.child("smil");
    readHead(smil.child("head"), document.header);
    readNode(smil.child("body"), document.body.root);
    return document;
}
