// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "region.h"

const RegionAttribute<QString> regionTexts[] = {
    {QStringLiteral("id"),  &SmilRegion::id },
    {QStringLiteral("fit"), &SmilRegion::fit},
};

const RegionAttribute<SmilUnit> regionMeasures[] = {
    {QStringLiteral("width"),  &SmilRegion::width },
    {QStringLiteral("height"), &SmilRegion::height},
    {QStringLiteral("top"),    &SmilRegion::top   },
    {QStringLiteral("bottom"), &SmilRegion::bottom},
    {QStringLiteral("left"),   &SmilRegion::left  },
    {QStringLiteral("right"),  &SmilRegion::right },
};
