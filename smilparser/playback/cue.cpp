// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

#include <QtCore/qnumeric.h>

/** Equal, as lists that share their cues are without a look at them, also when they are not a number. */
static bool isSame(double one, double other)
{
    return one == other || (qIsNaN(one) && qIsNaN(other));
}

bool SmilCue::operator==(const SmilCue &other) const
{
    return ref == other.ref && alt == other.alt && params == other.params && isSame(begin, other.begin)
        && isSame(end, other.end);
}

bool SmilCue::operator!=(const SmilCue &other) const
{
    return !(*this == other);
}
