// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_XMLSTREAM_H
#define SMILPARSER_BENCH_XMLSTREAM_H

#include <smilparser/smilparser.h>

/**
 * What a host's author could write instead of using the library: reads a message into the same records. It does what
 * the benchmarks' message needs and no more: the names in one letter case, no errors told, no hostile input.
 */
SmilDocument readWithXmlStream(const QByteArray &text);

#endif
