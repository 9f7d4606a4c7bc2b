// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "vocabulary.h"

#include <algorithm>

const QString bodyElement = QStringLiteral("body");
const QString headElement = QStringLiteral("head");
const QString layoutElement = QStringLiteral("layout");
const QString metaElement = QStringLiteral("meta");
const QString regionElement = QStringLiteral("region");
const QString rootLayoutElement = QStringLiteral("root-layout");
const QString smilElement = QStringLiteral("smil");
const QString topLayoutElement = QStringLiteral("topLayout");

const QString absent;
const QString durAttribute = QStringLiteral("dur");
const QString heightAttribute = QStringLiteral("height");
const QString widthAttribute = QStringLiteral("width");

const Attribute<SmilHeader> headAttributes[] = {
    {QStringLiteral("id"), &SmilHeader::id, nullptr},
    {QStringLiteral("title"), &SmilHeader::title, nullptr},
    {QStringLiteral("class"), &SmilHeader::className, nullptr},
};

const Attribute<SmilMeta> metaAttributes[] = {
    {QStringLiteral("id"), &SmilMeta::id, nullptr},
    {QStringLiteral("name"), &SmilMeta::name, nullptr},
    {QStringLiteral("content"), &SmilMeta::content, nullptr},
};

const Attribute<SmilRegion> regionAttributes[] = {
    {QStringLiteral("id"), &SmilRegion::id, nullptr},         {QStringLiteral("width"), nullptr, &SmilRegion::width},
    {QStringLiteral("height"), nullptr, &SmilRegion::height}, {QStringLiteral("top"), nullptr, &SmilRegion::top},
    {QStringLiteral("bottom"), nullptr, &SmilRegion::bottom}, {QStringLiteral("left"), nullptr, &SmilRegion::left},
    {QStringLiteral("right"), nullptr, &SmilRegion::right},   {QStringLiteral("fit"), &SmilRegion::fit, nullptr},
};

const Attribute<SmilRef> refAttributes[] = {
    {QStringLiteral("src"), &SmilRef::src, nullptr},
    {QStringLiteral("region"), &SmilRef::region, nullptr},
};

static const TimelineElement timeline[] = {
    {QStringLiteral("par"), TimelineElement::Node, SmilNode::Par},
    {QStringLiteral("seq"), TimelineElement::Node, SmilNode::Seq},
    {QStringLiteral("img"), TimelineElement::Ref, SmilRef::Img},
    {QStringLiteral("text"), TimelineElement::Ref, SmilRef::Text},
    {QStringLiteral("audio"), TimelineElement::Ref, SmilRef::Audio},
    {QStringLiteral("video"), TimelineElement::Ref, SmilRef::Video},
    {QStringLiteral("ref"), TimelineElement::Ref, SmilRef::Ref},
};

const TimelineElement *findElement(const QString &name)
{
    // Nearly all are written as they stand here, and that is quicker to tell.
    for (const TimelineElement &element : timeline) {
        if (name.size() == element.name.size() && std::equal(name.begin(), name.end(), element.name.begin())) {
            return &element;
        }
    }
    for (const TimelineElement &element : timeline) {
        if (name.compare(element.name, Qt::CaseInsensitive) == 0) {
            return &element;
        }
    }
    return nullptr;
}

const TimelineElement *findElement(TimelineElement::Record record, int type)
{
    for (const TimelineElement &element : timeline) {
        if (element.type == type && element.record == record) {
            return &element;
        }
    }
    return nullptr;
}
