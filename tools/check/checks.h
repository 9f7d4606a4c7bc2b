// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CHECKS_H
#define SMILTOOL_CHECKS_H

#include "check/findings.h"
#include "input/message.h"

/** Adds what of the message's own tree the library does not write back, or writes otherwise. */
void findLosses(const QDomElement &smil, Findings &found);

/** Adds measures, regions, media and their parts that are not as they should be. */
void findFaults(const QDomElement &smil, Message &message, Findings &found);

/**
 * Adds what plays at the same time in one place, and when nothing can be seen. Many phones show one thing to look at,
 * one text and one sound in a region; the finding is at the first medium that comes in addition to another.
 */
void findTiming(const QDomElement &smil, const SmilLayout &layout, Findings &found);

#endif
