// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_DOCUMENT_H
#define SMILPARSER_DOCUMENT_H

#include "body.h"
#include "head.h"

/**
 * What is written of a model, whichever way out it takes: that of a tree, or that of a text. Each function begins its
 * element, writes the attributes, appends the elements inside, and ends it.
 */
template<typename Out>
typename Out::Element writeDocument(Out &out, const SmilDocument &model)
{
    typename Out::Element element = out.begin(smilElement);
    out.append(element, writeHead(out, model.header));
    out.append(element, writeBody(out, model.body));
    out.end();
    return element;
}

#endif
