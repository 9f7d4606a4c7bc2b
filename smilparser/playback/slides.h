// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SLIDES_H
#define SMILPARSER_SLIDES_H

#include <smilparser/smilplayback.h>

#include <vector>

/**
 * Where a host pages while one child of "body" plays, all of whose media are those from @p begin to @p end, in any
 * order. Ascending, each once.
 */
std::vector<double> slidesOf(QList<SmilCue>::const_iterator begin, QList<SmilCue>::const_iterator end);

#endif
