// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "region.h"

const RegionAttribute regionAttributes[] = {
    {QStringLiteral("id"),     &SmilRegion::id,  nullptr            },
    {QStringLiteral("width"),  nullptr,          &SmilRegion::width },
    {QStringLiteral("height"), nullptr,          &SmilRegion::height},
    {QStringLiteral("top"),    nullptr,          &SmilRegion::top   },
    {QStringLiteral("bottom"), nullptr,          &SmilRegion::bottom},
    {QStringLiteral("left"),   nullptr,          &SmilRegion::left  },
    {QStringLiteral("right"),  nullptr,          &SmilRegion::right },
    {QStringLiteral("fit"),    &SmilRegion::fit, nullptr            },
};
