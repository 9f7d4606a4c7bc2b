// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "attributes.h"

const QString durAttribute = QStringLiteral("dur");
const QString heightAttribute = QStringLiteral("height");
const QString widthAttribute = QStringLiteral("width");

const Attribute<SmilHeader> headAttributes[] = {
    {QStringLiteral("id"),    &SmilHeader::id,        nullptr},
    {QStringLiteral("title"), &SmilHeader::title,     nullptr},
    {QStringLiteral("class"), &SmilHeader::className, nullptr},
};

const Attribute<SmilMeta> metaAttributes[] = {
    {QStringLiteral("id"),      &SmilMeta::id,      nullptr},
    {QStringLiteral("name"),    &SmilMeta::name,    nullptr},
    {QStringLiteral("content"), &SmilMeta::content, nullptr},
};

const Attribute<SmilRegion> regionAttributes[] = {
    {QStringLiteral("id"),     &SmilRegion::id,  nullptr            },
    {QStringLiteral("width"),  nullptr,          &SmilRegion::width },
    {QStringLiteral("height"), nullptr,          &SmilRegion::height},
    {QStringLiteral("top"),    nullptr,          &SmilRegion::top   },
    {QStringLiteral("bottom"), nullptr,          &SmilRegion::bottom},
    {QStringLiteral("left"),   nullptr,          &SmilRegion::left  },
    {QStringLiteral("right"),  nullptr,          &SmilRegion::right },
    {QStringLiteral("fit"),    &SmilRegion::fit, nullptr            },
};

const Attribute<SmilRef> refAttributes[] = {
    {QStringLiteral("src"),    &SmilRef::src,    nullptr},
    {QStringLiteral("region"), &SmilRef::region, nullptr},
};
