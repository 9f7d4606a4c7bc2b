// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FRAMES_H
#define SMILTOOL_FRAMES_H

#include <smilparser/smilparser.h>

/** What plays at one time of the message. It points into the message. */
struct Frame {
    QString dur; ///< how long, in words
    QList<const SmilRef *> media;
    QString order; ///< "a + b" at once, "a → b" one after another
    bool nested = false; ///< whether the order says more than the media do
};

/**
 * The frames of the timeline, one after another, bounds::frames at most. A seq gives those of each thing in it. A par
 * gives one, or those of the seq in it that has the most, with all else in the par added to each.
 */
QList<Frame> framesOf(const SmilNode &body);

/** The name of what plays, not longer than a line, with a sign for its kind. */
QString nameOf(const SmilRef &ref);

#endif
