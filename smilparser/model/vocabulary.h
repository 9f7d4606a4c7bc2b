// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_VOCABULARY_H
#define SMILPARSER_VOCABULARY_H

#include <smilparser/smilparser.h>

#include <utility>

// The names of elements and attributes, each made once: Qt would make one at each look-up.

extern const QString bodyElement;
extern const QString headElement;
extern const QString layoutElement;
extern const QString metaElement;
extern const QString regionElement;
extern const QString rootLayoutElement;
extern const QString smilElement;
extern const QString topLayoutElement;

/** An element of the timeline: its name, and the record that stands for it. */
struct TimelineElement {
    enum Record { Node, Ref };

    QString name;
    Record record;
    int type; ///< a SmilNode::Type or SmilRef::Type
};

/** The element of that name, in any letter case; null when there is none. */
const TimelineElement *findElement(const QString &name);

/** The element for that record; null when there is none. */
const TimelineElement *findElement(TimelineElement::Record record, int type);

/** An attribute of an element, and the field of its record that stands for it: a text or a measure; one is null. */
template<typename Record>
struct Attribute {
    QString name;
    QString Record::*text;
    SmilUnit Record::*measure;
};

// All of them, in the order in which they are written. No table has the sizes of root-layout and topLayout, because
// what is read into one field is written from another, or the duration of a node, for which reading has options.
extern const Attribute<SmilHeader> headAttributes[3];
extern const Attribute<SmilMeta> metaAttributes[3];
extern const Attribute<SmilRegion> regionAttributes[8];
extern const Attribute<SmilRef> refAttributes[2];

extern const QString durAttribute;
extern const QString heightAttribute;
extern const QString widthAttribute;

extern const QString absent; ///< the null text that an attribute is when it is absent

/** All attributes in the table. */
template<typename Record, std::size_t Count>
void readAttributes(const QDomElement &element, const Attribute<Record> (&attributes)[Count], Record &record)
{
    for (const Attribute<Record> &attribute : attributes) {
        QString text = element.attribute(attribute.name, absent);
        if (attribute.text) {
            record.*attribute.text = std::move(text);
        } else {
            record.*attribute.measure = SmilUnit(text);
        }
    }
}

#endif
