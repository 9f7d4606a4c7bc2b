// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slides.h"

#include <QtCore/qnumeric.h>

#include <algorithm>

std::vector<double> slidesOf(QList<SmilCue>::const_iterator begin, QList<SmilCue>::const_iterator end)
{
    std::vector<const SmilCue *> playing;
    for (auto cue = begin; cue != end; ++cue) {
        if (cue->begin < cue->end) {
            playing.push_back(&*cue);
        }
    }
    if (playing.empty()) {
        return {};
    }
    std::sort(playing.begin(), playing.end(), [](auto *a, auto *b) { return a->begin < b->begin; });
    std::vector<double> slides = {playing.front()->begin};
    double firstEnd = qInf(); // of what can be seen, and began on this slide
    for (const SmilCue *cue : playing) {
        if (cue->ref.type == SmilRef::Audio) {
            continue;
        }
        if (firstEnd <= cue->begin) {
            slides.push_back(cue->begin);
            firstEnd = qInf();
        }
        firstEnd = std::min(firstEnd, cue->end);
    }
    return slides;
}
