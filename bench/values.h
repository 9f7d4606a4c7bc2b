// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_VALUES_H
#define SMILPARSER_BENCH_VALUES_H

#include <smilparser/smilparser.h>

/** All that the model holds as text, so that two of them can be compared. */
QString values(const SmilDocument &model);

#endif
