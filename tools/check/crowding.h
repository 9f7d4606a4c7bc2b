// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CROWDING_H
#define SMILTOOL_CROWDING_H

#include "check/findings.h"

#include <smilparser/smilparser.h>

/**
 * Adds a finding for each region in which two things to look at, two texts or two sounds play at the same time, at the
 * first medium that comes in addition to another; and for those without a region that @p layout has. Cost: n log n in
 * the number of elements. Puts another "alt" on the media of the tree, which nobody may need any more: a copy of the
 * tree could take more memory than all else.
 */
void findCrowding(const QDomElement &smil, const SmilLayout &layout, Findings &found);

#endif
