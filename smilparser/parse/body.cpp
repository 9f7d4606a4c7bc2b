// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilparser.h>

bool SmilParser::parseSmilBody(QDomElement &)
{
    return true;
}
