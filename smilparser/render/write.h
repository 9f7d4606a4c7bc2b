// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_WRITE_H
#define SMILPARSER_WRITE_H

#include "smilparser/model/attributes.h"

template<typename Out>
inline void write(Out &out, typename Out::Element &element, const QString &attribute, const QString &text)
{
    if (!text.isEmpty()) {
        out.write(element, attribute, text);
    }
}

template<typename Out>
inline void write(Out &out, typename Out::Element &element, const QString &attribute, const SmilUnit &measure)
{
    if (measure.valid) {
        out.write(element, attribute, measure.toString());
    }
}

/** All attributes in the table. */
template<typename Out, typename Record, std::size_t Count>
inline void write(Out &out, typename Out::Element &element, const Attribute<Record> (&attributes)[Count],
                  const Record &record)
{
    for (const Attribute<Record> &attribute : attributes) {
        if (attribute.text) {
            write(out, element, attribute.name, record.*attribute.text);
        } else {
            write(out, element, attribute.name, record.*attribute.measure);
        }
    }
}

#endif
