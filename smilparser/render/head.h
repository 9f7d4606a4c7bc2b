// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_HEAD_H
#define SMILPARSER_HEAD_H

#include "write.h"

#include "smilparser/model/elements.h"

/** An element that holds no other, with all attributes in the table. */
template<typename Out, typename Record, std::size_t Count>
typename Out::Element writeRecord(Out &out, const QString &name, const Attribute<Record> (&attributes)[Count],
                                  const Record &record)
{
    typename Out::Element element = out.begin(name);
    write(out, element, attributes, record);
    out.end();
    return element;
}

template<typename Out>
typename Out::Element writeRootLayout(Out &out, const SmilLayout &layout)
{
    typename Out::Element element = out.begin(rootLayoutElement);
    // The top layout's size, not the root layout's: the whole is shown in that.
    write(out, element, widthAttribute, layout.topLayoutWidth);
    write(out, element, heightAttribute, layout.topLayoutHeight);
    out.end();
    return element;
}

template<typename Out>
typename Out::Element writeLayout(Out &out, const SmilLayout &layout)
{
    typename Out::Element element = out.begin(layoutElement);
    out.append(element, writeRootLayout(out, layout));
    for (const SmilRegion &region : layout.regions) {
        out.append(element, writeRecord(out, regionElement, regionAttributes, region));
    }
    out.end();
    return element;
}

template<typename Out>
typename Out::Element writeHead(Out &out, const SmilHeader &header)
{
    typename Out::Element element = out.begin(headElement);
    write(out, element, headAttributes, header);
    for (const SmilMeta &meta : header.metas) {
        out.append(element, writeRecord(out, metaElement, metaAttributes, meta));
    }
    out.append(element, writeLayout(out, header.layout));
    out.end();
    return element;
}

#endif
