// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_PEERS_H
#define SMILPARSER_BENCH_PEERS_H

#include <smilparser/smilparser.h>

/**
 * @file
 * What a host's author could write instead of using the library: each reads a message into the same records. They do
 * what the benchmarks' message needs and no more: the names in one letter case, no errors told, no hostile input.
 */

SmilDocument readWithXmlStream(const QByteArray &bytes);
SmilDocument readWithLibxml2(const QByteArray &bytes);
SmilDocument readWithPugixml(const QByteArray &bytes);

/** The kind of node that an element of that name is; 0 when it is none. */
template<typename Name>
int nodeType(const Name &name)
{
    return name == QLatin1String("par") ? SmilNode::Par : name == QLatin1String("seq") ? SmilNode::Seq : 0;
}

/** The kind of reference that an element of that name is; -1 when it is none. */
template<typename Name>
int refType(const Name &name)
{
    return name == QLatin1String("img")  ? SmilRef::Img
        : name == QLatin1String("text")  ? SmilRef::Text
        : name == QLatin1String("audio") ? SmilRef::Audio
        : name == QLatin1String("video") ? SmilRef::Video
        : name == QLatin1String("ref")   ? SmilRef::Ref
                                         : -1;
}

/**
 * The records of one element each. All three take their texts from @p attribute, which gives that of the attribute of a
 * name.
 */
template<typename Attribute>
SmilRef makeRef(int type, const Attribute &attribute)
{
    SmilRef ref(type);
    ref.src = attribute("src");
    ref.region = attribute("region");
    return ref;
}

template<typename Attribute>
SmilMeta makeMeta(const Attribute &attribute)
{
    SmilMeta meta;
    meta.id = attribute("id");
    meta.name = attribute("name");
    meta.content = attribute("content");
    return meta;
}

template<typename Attribute>
SmilRegion makeRegion(const Attribute &attribute)
{
    SmilRegion region;
    region.id = attribute("id");
    region.width = SmilUnit(attribute("width"));
    region.height = SmilUnit(attribute("height"));
    region.top = SmilUnit(attribute("top"));
    region.bottom = SmilUnit(attribute("bottom"));
    region.left = SmilUnit(attribute("left"));
    region.right = SmilUnit(attribute("right"));
    region.fit = attribute("fit");
    return region;
}

#endif
