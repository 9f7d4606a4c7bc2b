// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "write.h"

#include "smilparser/model/elements.h"

#include <utility>

QDomElement SmilParser::render(SmilHeader &header)
{
    QDomElement head = domDocument.createElement(headElement);
    write(head, headAttributes, header);

    for (const SmilMeta &record : std::as_const(header.metas)) {
        QDomElement meta = domDocument.createElement(metaElement);
        write(meta, metaAttributes, record);
        head.appendChild(meta);
    }
    head.appendChild(render(header.layout));
    return head;
}

QDomElement SmilParser::render(SmilLayout &layout)
{
    QDomElement element = domDocument.createElement(layoutElement);
    QDomElement root = domDocument.createElement(rootLayoutElement);
    // The top layout's size, not the root layout's: the whole is shown in that.
    write(root, widthAttribute, layout.topLayoutWidth);
    write(root, heightAttribute, layout.topLayoutHeight);
    element.appendChild(root);

    for (const SmilRegion &record : std::as_const(layout.regions)) {
        QDomElement region = domDocument.createElement(regionElement);
        write(region, regionAttributes, record);
        element.appendChild(region);
    }
    return element;
}
