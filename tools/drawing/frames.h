// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FRAMES_H
#define SMILTOOL_FRAMES_H

#include <smilparser/smilplayback.h>

/** A slide of the message. */
struct Frame {
    QString heading; ///< its number, when it begins, and how long it takes: "2 · 0:06.825 · 3s"
    QList<SmilCue> cues; ///< bounds::media at most
};

/** The slides, one after another, bounds::frames at most. */
QList<Frame> framesOf(const SmilTimeline &timeline);

/** The name of what plays, not longer than a line, with a sign for its kind. */
QString nameOf(const SmilRef &ref);

/** The same for who cannot see it: the words that the message has for it, if any, in place of its name. */
QString wordsFor(const SmilCue &cue);

#endif
