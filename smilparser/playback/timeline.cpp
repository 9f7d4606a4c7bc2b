// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "regionstyle.h"
#include "timelinebuilder.h"

#include "smilparser/model/vocabulary.h"

#include <QtCore/qnumeric.h>

#include <algorithm>

SmilTimeline::SmilTimeline()
    : d(new SmilTimelineData)
{
}

SmilTimeline::SmilTimeline(const QDomElement &smil, double slideDuration,
                           const std::function<double(const SmilRef &)> &length)
    : d(new SmilTimelineData)
{
    if (smil.tagName() == smilElement) {
        d->background = readBackground(smil);
        buildTimeline(smil, slideDuration, length, *d);
    }
}

SmilTimeline::SmilTimeline(const SmilTimeline &other) = default;
SmilTimeline::SmilTimeline(SmilTimeline &&other) noexcept = default;
SmilTimeline &SmilTimeline::operator=(const SmilTimeline &other) = default;
SmilTimeline &SmilTimeline::operator=(SmilTimeline &&other) noexcept = default;
SmilTimeline::~SmilTimeline() = default;

QList<SmilCue> SmilTimeline::cues() const
{
    return d->cues;
}

QList<double> SmilTimeline::slideBegins() const
{
    return d->slideBegins;
}

double SmilTimeline::duration() const
{
    return d->duration;
}

QString SmilTimeline::background() const
{
    return d->background;
}

QList<SmilCue> SmilTimeline::cuesAt(double seconds) const
{
    QList<SmilCue> playing;
    std::copy_if(d->cues.begin(), d->cues.end(), std::back_inserter(playing),
                 [=](const SmilCue &cue) { return cue.begin <= seconds && seconds < cue.end; });
    return playing;
}

QList<SmilCue> SmilTimeline::cuesBetween(double from, double to) const
{
    QList<SmilCue> playing;
    std::copy_if(d->cues.begin(), d->cues.end(), std::back_inserter(playing),
                 [=](const SmilCue &cue) { return cue.begin < to && cue.end > from && cue.begin < cue.end; });
    return playing;
}

QList<SmilCue> SmilTimeline::cuesOnSlide(int index) const
{
    return index < 0 || index >= d->slideBegins.size()
        ? QList<SmilCue>()
        : cuesBetween(d->slideBegins.at(index), d->slideBegins.value(index + 1, qInf()));
}

double SmilTimeline::nextChange(double seconds) const
{
    double next = qInf();
    for (const SmilCue &cue : d->cues) {
        if (cue.begin < cue.end) {
            next = cue.begin > seconds ? std::min(next, cue.begin) : next;
            next = cue.end > seconds ? std::min(next, cue.end) : next;
        }
    }
    return next;
}
