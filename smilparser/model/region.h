// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_REGION_H
#define SMILPARSER_REGION_H

#include <smilparser/smilparser.h>

/** An attribute of a region, and the field that stands for it. */
template<typename Value>
struct RegionAttribute {
    QString name;
    Value SmilRegion::*field;
};

/** All of them: those that are texts, and those that are measures. */
extern const RegionAttribute<QString> regionTexts[2];
extern const RegionAttribute<SmilUnit> regionMeasures[6];

#endif
