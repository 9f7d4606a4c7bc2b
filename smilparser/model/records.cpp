// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include <QtCore/qnumeric.h>

SmilDocument::SmilDocument() = default;

bool SmilUnit::operator==(const SmilUnit &other) const
{
    // Lists that share their records are equal without comparing them, so a record equals itself, with a NaN too.
    const bool sameValue = value == other.value || (qIsNaN(value) && qIsNaN(other.value));
    return valid == other.valid && unit == other.unit && sameValue;
}

bool SmilRef::operator==(const SmilRef &other) const
{
    return type == other.type && src == other.src && region == other.region;
}

bool SmilNode::operator==(const SmilNode &other) const
{
    return type == other.type && dur == other.dur && refs == other.refs && children == other.children;
}

bool SmilBody::operator==(const SmilBody &other) const
{
    return spare1 == other.spare1 && spare2 == other.spare2 && spare3 == other.spare3 && spare4 == other.spare4
        && root == other.root;
}

bool SmilMeta::operator==(const SmilMeta &other) const
{
    return id == other.id && name == other.name && content == other.content;
}

bool SmilRegion::operator==(const SmilRegion &other) const
{
    return id == other.id && width == other.width && height == other.height && bottom == other.bottom
        && top == other.top && left == other.left && right == other.right && fit == other.fit;
}

bool SmilLayout::operator==(const SmilLayout &other) const
{
    return rootLayoutWidth == other.rootLayoutWidth && rootLayoutHeight == other.rootLayoutHeight
        && topLayoutWidth == other.topLayoutWidth && topLayoutHeight == other.topLayoutHeight
        && regions == other.regions;
}

bool SmilHeader::operator==(const SmilHeader &other) const
{
    return id == other.id && className == other.className && title == other.title && spare == other.spare
        && metas == other.metas && layout == other.layout;
}

bool SmilDocument::operator==(const SmilDocument &other) const
{
    return body == other.body && header == other.header;
}

bool SmilUnit::operator!=(const SmilUnit &other) const
{
    return !(*this == other);
}

bool SmilRef::operator!=(const SmilRef &other) const
{
    return !(*this == other);
}

bool SmilNode::operator!=(const SmilNode &other) const
{
    return !(*this == other);
}

bool SmilBody::operator!=(const SmilBody &other) const
{
    return !(*this == other);
}

bool SmilMeta::operator!=(const SmilMeta &other) const
{
    return !(*this == other);
}

bool SmilRegion::operator!=(const SmilRegion &other) const
{
    return !(*this == other);
}

bool SmilLayout::operator!=(const SmilLayout &other) const
{
    return !(*this == other);
}

bool SmilHeader::operator!=(const SmilHeader &other) const
{
    return !(*this == other);
}

bool SmilDocument::operator!=(const SmilDocument &other) const
{
    return !(*this == other);
}
