// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_OPTIONS_H
#define SMILPARSER_OPTIONS_H

class QDomElement;
class SmilLayout;
class SmilNode;

/** Reads each clock value in @p element into its duration in @p node, which has been read from that element. */
void readClockDurations(const QDomElement &element, SmilNode &node);

/** Copies the root layout's width to the top layout if that has no valid one, and the height likewise. */
void keepRootSize(SmilLayout &layout);

#endif
