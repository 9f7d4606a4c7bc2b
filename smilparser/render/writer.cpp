// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "writer.h"

#include "smilparser/model/vocabulary.h"

static void write(Writer &out, const QString &attribute, const QString &text)
{
    if (!text.isEmpty()) {
        out.write(attribute, text);
    }
}

static void write(Writer &out, const QString &attribute, const SmilUnit &measure)
{
    if (measure.valid) {
        out.write(attribute, measure.toString());
    }
}

/** All attributes in the table. */
template<typename Record, std::size_t Count>
static void write(Writer &out, const Attribute<Record> (&attributes)[Count], const Record &record)
{
    for (const Attribute<Record> &attribute : attributes) {
        if (attribute.text) {
            write(out, attribute.name, record.*attribute.text);
        } else {
            write(out, attribute.name, record.*attribute.measure);
        }
    }
}

/** An element that holds no other, with all attributes in the table. */
template<typename Record, std::size_t Count>
static void writeElement(Writer &out, const QString &name, const Attribute<Record> (&attributes)[Count],
                         const Record &record)
{
    out.begin(name);
    write(out, attributes, record);
    out.end();
}

void writeRecord(Writer &out, const SmilDocument &model)
{
    out.begin(smilElement);
    writeRecord(out, model.header);
    writeRecord(out, model.body);
    out.end();
}

void writeRecord(Writer &out, const SmilHeader &header)
{
    out.begin(headElement);
    write(out, headAttributes, header);
    for (const SmilMeta &meta : header.metas) {
        writeElement(out, metaElement, metaAttributes, meta);
    }
    writeRecord(out, header.layout);
    out.end();
}

void writeRecord(Writer &out, const SmilLayout &layout)
{
    out.begin(layoutElement);
    out.begin(rootLayoutElement);
    // The top layout's size, not the root layout's: the whole is shown in that.
    write(out, widthAttribute, layout.topLayoutWidth);
    write(out, heightAttribute, layout.topLayoutHeight);
    out.end();
    for (const SmilRegion &region : layout.regions) {
        writeElement(out, regionElement, regionAttributes, region);
    }
    out.end();
}

void writeRecord(Writer &out, const SmilBody &body)
{
    out.begin(bodyElement);
    for (const SmilNode &node : body.root.children) {
        writeRecord(out, node);
    }
    out.end();
}

void writeRecord(Writer &out, const SmilNode &node)
{
    const int type = node.type == SmilNode::Seq ? SmilNode::Seq : SmilNode::Par;
    out.begin(findElement(TimelineElement::Node, type)->name);
    write(out, durAttribute, node.dur);
    for (const SmilNode &child : node.children) {
        writeRecord(out, child);
    }
    for (const SmilRef &ref : node.refs) {
        writeRecord(out, ref);
    }
    out.end();
}

void writeRecord(Writer &out, const SmilRef &ref)
{
    const TimelineElement *const known = findElement(TimelineElement::Ref, ref.type);
    if (known) { // one of an unknown kind is left out
        writeElement(out, known->name, refAttributes, ref);
    }
}
