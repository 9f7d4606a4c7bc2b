// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_TIMELINE_H
#define SMILPARSER_TIMELINE_H

#include <QtCore/QString>

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

#endif
