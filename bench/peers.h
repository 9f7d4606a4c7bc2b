// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_PEERS_H
#define SMILPARSER_BENCH_PEERS_H

#include <smilparser/smilparser.h>

/**
 * @file
 * What a host's author could write instead of using the library: each reads a message into the same records. They do
 * what the benchmarks' message needs and no more: the names in one letter case, no errors told, no hostile input.
 */

SmilDocument readWithXmlStream(const QByteArray &text);
SmilDocument readWithLibxml2(const QByteArray &text);
SmilDocument readWithPugixml(const QByteArray &text);

#endif
