// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_SLIDES_H
#define SMILPARSER_SLIDES_H

#include <smilparser/smilplayback.h>

#include <vector>

/**
 * Where a host pages while the media from @p begin to @p end play, which are all those of one child of "body", in any
 * order: ascending, each once.
 */
std::vector<double> slidesOf(QList<SmilCue>::const_iterator begin, QList<SmilCue>::const_iterator end);

#endif
