// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilplayback.h>

bool SmilCue::operator==(const SmilCue &other) const
{
    return ref == other.ref && alt == other.alt && params == other.params && begin == other.begin && end == other.end;
}

bool SmilCue::operator!=(const SmilCue &other) const
{
    return !(*this == other);
}
