// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_ATTRIBUTES_H
#define SMILPARSER_ATTRIBUTES_H

#include <smilparser/smilparser.h>

inline void write(QDomElement &element, const QString &attribute, const QString &text)
{
    if (!text.isEmpty()) {
        element.setAttribute(attribute, text);
    }
}

inline void write(QDomElement &element, const QString &attribute, const SmilUnit &measure)
{
    if (measure.valid) {
        element.setAttribute(attribute, measure.toString());
    }
}

#endif
