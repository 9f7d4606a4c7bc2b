// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_REGION_H
#define SMILPARSER_REGION_H

#include <smilparser/smilparser.h>

/** An attribute of a region, and the field that stands for it: a text or a measure; the other is null. */
struct RegionAttribute {
    QString name;
    QString SmilRegion::*text;
    SmilUnit SmilRegion::*measure;
};

/** All of them, in the order in which they are read and written. */
extern const RegionAttribute regionAttributes[8];

#endif
