// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_ATTRIBUTES_H
#define SMILPARSER_ATTRIBUTES_H

#include <smilparser/smilparser.h>

/** An attribute of an element, and the field of its record that stands for it: a text or a measure; one is null. */
template<typename Record>
struct Attribute {
    QString name;
    QString Record::*text;
    SmilUnit Record::*measure;
};

// All of them, in the order in which they are written. The sizes of root-layout and topLayout are in none: what is read
// into one field is written from another. Nor is the duration of a node, for which reading has options.
extern const Attribute<SmilHeader> headAttributes[3];
extern const Attribute<SmilMeta> metaAttributes[3];
extern const Attribute<SmilRegion> regionAttributes[8];
extern const Attribute<SmilRef> refAttributes[2];

extern const QString durAttribute;
extern const QString heightAttribute;
extern const QString widthAttribute;

#endif
