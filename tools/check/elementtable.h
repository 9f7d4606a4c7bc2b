// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_ELEMENTTABLE_H
#define SMILTOOL_ELEMENTTABLE_H

#include <QtCore/QStringList>
#include <QtXml/QDomElement>

/** What the library reads and writes of elements. */
struct Element {
    QStringList names; ///< in lower case in the timeline
    QStringList attributes;
    QStringList first; ///< children of which the first is read
    QStringList all; ///< children that are all read
};

/** That of the element with this name, in lower case in the timeline; empty for one that the library does not know. */
const Element &elementNamed(const QString &name);

/** A child of an element. */
struct Child {
    QDomElement element;
    QString name; ///< in lower case in the timeline, where the library knows names in any
    bool isLost; ///< the library does not read it
};

/** The children of the element, which has this name. */
QList<Child> childrenOf(const QDomElement &element, const QString &name);

/** Whether the element with this name is "par" or "seq". */
bool isNode(const QString &name);
/** Whether the element with this name is played: "img" and the like. */
bool isMedium(const QString &name);

#endif
