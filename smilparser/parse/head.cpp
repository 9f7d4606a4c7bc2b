// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

bool SmilParser::parseSmilHead(QDomElement &)
{
    return true;
}
