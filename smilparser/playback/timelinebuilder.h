// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_TIMELINEBUILDER_H
#define SMILPARSER_TIMELINEBUILDER_H

#include <smilparser/smilplayback.h>

class SmilTimelineData : public QSharedData
{
public:
    QList<SmilCue> cues;
    QList<double> slideBegins;
    double duration = 0.0;
    QString background;
};

/** Fills @p timeline from the "body" of @p smil, as the constructor of SmilTimeline says; except its background. */
void buildTimeline(const QDomElement &smil, double slideDuration, const std::function<double(const SmilRef &)> &length,
                   SmilTimelineData &timeline);

#endif
