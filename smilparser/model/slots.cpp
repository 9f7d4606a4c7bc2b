// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slots.h"

#include <smilparser/smilparser.h>

Slots slotsOf(int type)
{
    switch (type) {
    case SmilRef::Text:
        return int(Slot::Text);
    case SmilRef::Audio:
        return int(Slot::Audio);
    case SmilRef::Video:
        return int(Slot::Visual) | int(Slot::Audio);
    case SmilRef::Img:
    case SmilRef::Ref:
        return int(Slot::Visual);
    default:
        return 0;
    }
}
