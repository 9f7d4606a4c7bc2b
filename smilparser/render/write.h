// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_WRITE_H
#define SMILPARSER_WRITE_H

#include "smilparser/model/attributes.h"

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

/** All attributes in the table. */
template<typename Record, std::size_t Count>
inline void write(QDomElement &element, const Attribute<Record> (&attributes)[Count], const Record &record)
{
    for (const Attribute<Record> &attribute : attributes) {
        if (attribute.text) {
            write(element, attribute.name, record.*attribute.text);
        } else {
            write(element, attribute.name, record.*attribute.measure);
        }
    }
}

#endif
