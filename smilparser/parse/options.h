// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_OPTIONS_H
#define SMILPARSER_OPTIONS_H

class QDomElement;
class SmilLayout;
class SmilNode;

/** Sets each duration in @p node, which has been read from @p element, that is stated as a clock value to that. */
void readClockDurations(const QDomElement &element, SmilNode &node);

/** Takes the root layout's width where there is no valid one of the top layout, and its height likewise. */
void keepRootSize(SmilLayout &layout);

#endif
