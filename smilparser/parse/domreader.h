// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_DOMREADER_H
#define SMILPARSER_DOMREADER_H

#include <smilparser/smilparser.h>

// The operations of SmilParser that take an element, with the options of parse() and into any record. Each returns and
// changes what the operation of that name does.

/** Does what parseSmilDocument() does, and gives the outcome; NoBody also when the body was refused. */
SmilParser::Outcome readDocument(const QDomElement &smil, SmilDocument &document, SmilParser::ReadOptions options);

void readHead(const QDomElement &head, SmilHeader &header);
void readLayout(const QDomElement &layout, SmilLayout &record);
bool readNodes(const QDomElement &element, SmilNode &node, int depth, SmilParser::ReadOptions options);

#endif
