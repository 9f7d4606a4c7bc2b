// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_ELEMENTTABLE_H
#define SMILTOOL_ELEMENTTABLE_H

#include <QtCore/QStringList>

/** What the library reads and writes of an element. */
struct Element {
    QStringList attributes; ///< in the order in which they are printed
    QStringList first; ///< children of which the first is read
    QStringList all; ///< children that are all read
};

/** That of the element with this name, in lower case in the timeline; empty for one that the library does not know. */
const Element &elementNamed(const QString &element);

/** Whether the attribute is a size, a position or a duration, whatever its element. */
bool isMeasure(const QString &attribute);

#endif
