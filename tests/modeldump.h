// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_MODELDUMP_H
#define SMILPARSER_MODELDUMP_H

#include <smilparser/smilparser.h>

/**
 * A model as a line of text in the manner of SMIL: "<body dur='1s'><par><img src='a'/></par></body>". It names what
 * the model holds and leaves out what is absent: null texts, invalid measures, and the head and the layouts when they
 * hold nothing. Nodes stand before media, because a model does not tell how they were mixed.
 */
class ModelDump
{
public:
    static QString of(const SmilDocument &model)
    {
        const SmilHeader &head = model.header;
        const SmilBody &body = model.body;
        const QString attributes = attribute("id", head.id) + attribute("class", head.className)
            + attribute("title", head.title) + attribute("spare", head.spare);
        const QString spares = attribute("spare1", body.spare1) + attribute("spare2", body.spare2)
            + attribute("spare3", body.spare3) + attribute("spare4", body.spare4);
        return part("head", attributes, of(head.metas) + of(head.layout))
            + named(body.root.type == SmilNode::Par ? "body" : "body-that-is-no-par", body.root, spares);
    }
    static QString of(const SmilNode &node)
    {
        return named(node.type == SmilNode::Par ? "par" : node.type == SmilNode::Seq ? "seq" : "unknown", node);
    }
    /** A DOM in the same way, with sorted attributes; "<#text/>" is a text, and so on. */
    static QString of(const QDomNode &node)
    {
        QStringList attributes;
        for (int i = 0; i < node.attributes().count(); ++i) {
            const QDomNode item = node.attributes().item(i);
            attributes << attribute(qPrintable(item.nodeName()), QLatin1String("") + item.nodeValue());
        }
        attributes.sort();
        QString inside;
        for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
            inside += of(child);
        }
        return node.isNull() || node.isDocument()
            ? inside
            : element(qPrintable(node.nodeName()), attributes.join(QString()), inside);
    }

private:
    static QString attribute(const char *name, const QString &text)
    {
        return text.isNull() ? QString() : QStringLiteral(" %1='%2'").arg(QLatin1String(name), text);
    }
    static QString attribute(const char *name, const SmilUnit &measure)
    {
        const bool reset = measure.unit == SmilUnit::NoUnit && measure.value == 0.0;
        return measure.valid ? attribute(name, QLatin1String("") + measure.toString())
                             : attribute(name, reset ? QString() : QStringLiteral("invalid, but not reset"));
    }
    static QString size(const SmilUnit &width, const SmilUnit &height)
    {
        return attribute("width", width) + attribute("height", height);
    }
    static QString element(const char *name, const QString &attributes, const QString &inside = QString())
    {
        const QString start = QLatin1Char('<') + QLatin1String(name) + attributes;
        return inside.isEmpty() ? start + QLatin1String("/>")
                                : QStringLiteral("%1>%2</%3>").arg(start, inside, QLatin1String(name));
    }
    /** As element(), but nothing when it holds nothing. */
    static QString part(const char *name, const QString &attributes, const QString &inside = QString())
    {
        return attributes.isEmpty() && inside.isEmpty() ? QString() : element(name, attributes, inside);
    }
    template<typename Record>
    static QString of(const QList<Record> &list)
    {
        QString all;
        for (const Record &record : list) {
            all += of(record);
        }
        return all;
    }
    static QString of(const SmilMeta &meta)
    {
        return element("meta",
                       attribute("id", meta.id) + attribute("name", meta.name) + attribute("content", meta.content));
    }
    static QString of(const SmilLayout &layout)
    {
        return part("layout", QString(),
                    part("root-layout", size(layout.rootLayoutWidth, layout.rootLayoutHeight))
                        + part("topLayout", size(layout.topLayoutWidth, layout.topLayoutHeight)) + of(layout.regions));
    }
    static QString of(const SmilRegion &region)
    {
        return element("region",
                       attribute("id", region.id) + size(region.width, region.height) + attribute("left", region.left)
                           + attribute("right", region.right) + attribute("top", region.top)
                           + attribute("bottom", region.bottom) + attribute("fit", region.fit));
    }
    static QString of(const SmilRef &ref)
    {
        static const char *const names[] = {"text", "img", "audio", "video", "ref"};
        return element(ref.type >= SmilRef::Text && ref.type <= SmilRef::Ref ? names[ref.type] : "unknown",
                       attribute("src", ref.src) + attribute("region", ref.region));
    }
    static QString named(const char *name, const SmilNode &node, const QString &more = QString())
    {
        return element(name, more + attribute("dur", node.dur), of(node.children) + of(node.refs));
    }
};

#endif
