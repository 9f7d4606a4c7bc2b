// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

#include "smilparser/model/elements.h"

QDomDocument &SmilParser::getContent()
{
    // Cleared, not replaced by an empty document: a null one starts anew with the first element it creates.
    domDocument.clear();
    domDocument.appendChild(render(document));
    return domDocument;
}

QDomElement SmilParser::render(SmilDocument &model)
{
    QDomElement smil = domDocument.createElement(smilElement);
    smil.appendChild(render(model.header));
    smil.appendChild(render(model.body));
    return smil;
}
