// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <QtCore/qnumeric.h>

class SmilCueData : public QSharedData
{
};

SmilCue::SmilCue()
    : ref(SmilRef::Ref)
    , line(-1)
    , begin(0.0)
    , end(0.0)
{
}

SmilCue::SmilCue(const SmilCue &other) = default;
SmilCue::SmilCue(SmilCue &&other) noexcept = default;
SmilCue &SmilCue::operator=(const SmilCue &other) = default;
SmilCue &SmilCue::operator=(SmilCue &&other) noexcept = default;
SmilCue::~SmilCue() = default;

/** Equal, as lists that share their cues are without a look at them, also when they are not a number. */
static bool isSame(double one, double other)
{
    return one == other || (qIsNaN(one) && qIsNaN(other));
}

bool SmilCue::operator==(const SmilCue &other) const
{
    return ref == other.ref && alt == other.alt && params == other.params && background == other.background
        && fit == other.fit && isSame(begin, other.begin) && isSame(end, other.end);
}

bool SmilCue::operator!=(const SmilCue &other) const
{
    return !(*this == other);
}
