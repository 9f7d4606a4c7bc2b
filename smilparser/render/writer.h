// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_WRITER_H
#define SMILPARSER_WRITER_H

#include <smilparser/smilparser.h>

/** Takes a model into a tree or a text. The elements inside of one come between its begin and its end. */
class Writer
{
public:
    virtual void begin(const QString &element) = 0;
    virtual void write(const QString &attribute, const QString &text) = 0; ///< of the element begun last
    virtual void end() = 0;

protected:
    ~Writer() = default;
};

// What is written of each record. As const: walking a non-const list would copy it when the host shares it.
void writeRecord(Writer &out, const SmilDocument &model);
void writeRecord(Writer &out, const SmilHeader &header);
void writeRecord(Writer &out, const SmilLayout &layout);
void writeRecord(Writer &out, const SmilBody &body);
void writeRecord(Writer &out, const SmilNode &node);
void writeRecord(Writer &out, const SmilRef &ref);

#endif
