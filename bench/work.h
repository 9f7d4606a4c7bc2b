// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_WORK_H
#define SMILPARSER_BENCH_WORK_H

#include <smilparser/smilparser.h>

#include <memory>

/**
 * One of the four things that are compared. What it needs is made by the constructor, and what it leaves is dropped by
 * the destructor, so that run() is what is asked about and nothing else.
 */
class Work
{
public:
    virtual ~Work() = default;
    virtual void run() = 0;
};

/** Reads @p buffer, which is open, into @p dom with the XML reader alone. */
void readDom(QDomDocument &dom, QBuffer &buffer);

/** The work of that name, "floor-parse", "parse", "floor-write" or "write"; null for any other. */
std::unique_ptr<Work> makeWork(const QByteArray &name, int slides);

#endif
